#include "ui/settings/SnippetListModel.h"

#include <algorithm>

#include "input/Preferences.h"
#include "model/SnippetStore.h"
#include "platform/UserDefaults.h"

namespace tessarin::ui {
namespace {

/// More than the widest row shows; texts can be of any length.
constexpr std::size_t bytesShown = 1000;

/// The beginning of a text, line breaks and tabs as spaces.
QString inOneLine(const std::string& text) {
  std::size_t end = std::min(text.size(), bytesShown);
  while (end < text.size() && end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80) --end;
  QString line = QString::fromUtf8(text.data(), static_cast<qsizetype>(end));
  line.replace("\r\n", " ");
  for (QChar& c : line) {
    const bool isBreak = c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
    if (isBreak || c.category() == QChar::Other_Control) c = ' ';
  }
  return line;
}

}  // namespace

SnippetListModel::SnippetListModel(SnippetStore& store, UserDefaults& defaults, QObject* parent)
    : QAbstractListModel(parent), store_(store), defaults_(defaults), shown_(ids()) {
  followTrigger();
  storeSubscription_ = store_.onChange([this] { follow(); });
  defaultsSubscription_ = defaults_.onChange([this] { followTrigger(); });
}

std::vector<std::string> SnippetListModel::ids() const {
  std::vector<std::string> found;
  found.reserve(store_.userSnippets().size());
  for (const Snippet& snippet : store_.userSnippets()) found.push_back(snippet.id);
  return found;
}

void SnippetListModel::follow() {
  const auto& snippets = store_.userSnippets();
  const std::size_t now = snippets.size();
  if (now == shown_.size() + 1) {
    beginInsertRows({}, static_cast<int>(now) - 1, static_cast<int>(now) - 1);
    shown_.push_back(snippets.back().id);
    endInsertRows();
  } else if (now < shown_.size()) {
    followRemoval(now);
  } else if (now == shown_.size() && now > 0) {
    Q_EMIT dataChanged(index(0), index(static_cast<int>(now) - 1));
  }
}

void SnippetListModel::followRemoval(std::size_t now) {
  std::vector<std::string> left = ids();
  const auto first = std::mismatch(left.begin(), left.end(), shown_.begin()).second - shown_.begin();
  const auto count = static_cast<std::ptrdiff_t>(shown_.size() - now);
  const bool isOneRun = std::equal(left.begin() + first, left.end(), shown_.begin() + first + count);
  if (isOneRun) {
    beginRemoveRows({}, static_cast<int>(first), static_cast<int>(first + count) - 1);
    shown_ = std::move(left);
    endRemoveRows();
  } else {
    beginResetModel();
    shown_ = std::move(left);
    endResetModel();
  }
}

void SnippetListModel::followTrigger() {
  const QString trigger = QString::fromStdString(preferences::currentTriggerCharacter(defaults_));
  if (trigger == trigger_) return;
  trigger_ = trigger;
  if (!shown_.empty()) Q_EMIT dataChanged(index(0), index(rowCount() - 1));
}

int SnippetListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(shown_.size());
}

const Snippet& SnippetListModel::snippet(const QModelIndex& index) const {
  return store_.userSnippets().at(static_cast<std::size_t>(index.row()));
}

QVariant SnippetListModel::data(const QModelIndex& index, int role) const {
  if (!checkIndex(index, CheckIndexOption::IndexIsValid)) return {};
  // An observer told before this one may ask while the rows are still the former ones.
  if (static_cast<std::size_t>(index.row()) >= store_.userSnippets().size()) return {};
  const Snippet& shown = snippet(index);
  switch (role) {
    case Qt::DisplayRole:  // what typing in the list looks for
      return inOneLine(shown.trigger);
    case nameRole:
      return inOneLine(shown.name);
    case triggerRole:
      return QString(trigger_ + inOneLine(shown.trigger) + trigger_);
    case replacementRole:
      return inOneLine(shown.replacement);
    case Qt::AccessibleTextRole:
      //: A list row, as it is read out: trigger, name, text inserted
      return tr("%1, %2, %3")
          .arg(trigger_ + inOneLine(shown.trigger) + trigger_, inOneLine(shown.name),
               inOneLine(shown.replacement));
    default:
      return {};
  }
}

}  // namespace tessarin::ui
