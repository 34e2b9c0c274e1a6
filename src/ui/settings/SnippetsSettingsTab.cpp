#include "ui/settings/SnippetsSettingsTab.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QFile>
#include <QHBoxLayout>
#include <QMessageBox>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>
#include <chrono>
#include <utility>

#include "base/Log.h"
#include "input/Preferences.h"
#include "model/SnippetStore.h"
#include "platform/MainQueue.h"
#include "ui/settings/SnippetEditorView.h"
#include "ui/settings/SnippetListModel.h"
#include "ui/settings/SnippetListView.h"
#include "ui/style/IconButton.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"
#include "ui/style/Symbol.h"

namespace tessarin::ui {
namespace {

constexpr int snippetsSpacing = 12;
constexpr int emptyStateSpacing = 8;
constexpr std::chrono::milliseconds messageDuration{3000};

QPushButton* makeButton(const QString& text, const QString& symbol) {
  auto* button = new IconButton(symbolIcon(symbol), text);
  button->setAutoDefault(false);
  return button;
}

std::optional<std::filesystem::path> droppedPath(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) return std::nullopt;
  return QFile::encodeName(urls.front().toLocalFile()).toStdString();
}

}  // namespace

SnippetsSettingsTab::SnippetsSettingsTab(const SettingsServices& services, QWidget* parent)
    : SnippetsSettingsTab(services, SnippetFileDialogs::native(), parent) {}

SnippetsSettingsTab::SnippetsSettingsTab(const SettingsServices& services, SnippetFileDialogs dialogs,
                                         QWidget* parent)
    : QWidget(parent),
      services_(services),
      dialogs_(std::move(dialogs)),
      model_(new SnippetListModel(services.snippetStore, services.userDefaults, this)),
      list_(new SnippetListView),
      import_(makeButton(tr("Import"), "import")),
      export_(makeButton(tr("Export"), "export")),
      add_(makeButton(tr("Add"), "plus")),
      message_(new StyledLabel({}, TextStyle::caption, ColorRole::green)),
      builtInCount_(new StyledLabel({}, TextStyle::caption, ColorRole::secondary)),
      emptyState_(makeEmptyState()) {
  auto* stack = new QVBoxLayout(this);
  stack->setContentsMargins(tabPadding, tabPadding, tabPadding, tabPadding);
  stack->setSpacing(snippetsSpacing);
  stack->addLayout(makeHeader());
  stack->addWidget(message_);
  stack->addWidget(emptyState_, 1);
  stack->addWidget(list_, 1);
  message_->wrapped();
  message_->hide();
  list_->setModel(model_);
  setAcceptDrops(true);
  import_->setToolTip(
      tr("Also of espanso or AutoKey, or a table (CSV). Files and folders can be dropped here."));
  connectAll();
  refresh();
}

QHBoxLayout* SnippetsSettingsTab::makeHeader() {
  auto* header = new QHBoxLayout;
  header->addWidget(new StyledLabel(tr("Custom Snippets"), TextStyle::headline));
  header->addStretch(1);
  for (QPushButton* button : {import_, export_, add_}) header->addWidget(button);
  return header;
}

QWidget* SnippetsSettingsTab::makeEmptyState() {
  auto* block = new QWidget;
  auto* lines = new QVBoxLayout(block);
  lines->setSpacing(emptyStateSpacing);
  lines->addStretch(1);
  auto* title = new StyledLabel(tr("No custom snippets yet"), TextStyle::body, ColorRole::secondary);
  for (StyledLabel* line : {title, builtInCount_}) lines->addWidget(&line->centred());
  lines->addStretch(1);
  return block;
}

void SnippetsSettingsTab::connectAll() {
  connect(import_, &QPushButton::clicked, this, &SnippetsSettingsTab::chooseImport);
  connect(export_, &QPushButton::clicked, this, &SnippetsSettingsTab::chooseExport);
  connect(add_, &QPushButton::clicked, this, [this] { setSheet(SnippetSheetState::forNew()); });
  connect(list_, &SnippetListView::editRequested, this, [this](const QModelIndex& index) {
    setSheet(SnippetSheetState::forEditing(model_->snippet(index)));
  });
  connect(list_, &SnippetListView::deleteRequested, this, &SnippetsSettingsTab::remove);
  connect(&reading_, &SnippetFileReading::done, this, &SnippetsSettingsTab::finishImport);
  storeSubscription_ = services_.snippetStore.onChange([this] { refresh(); });
}

void SnippetsSettingsTab::refresh() {
  // An import tells of every single snippet.
  const bool isEmpty = services_.snippetStore.userSnippets().empty();
  if (isEmpty == !emptyState_->isHidden() && isEmpty == list_->isHidden()) return;
  const bool hadFocus = list_->hasFocus() || list_->isAncestorOf(QApplication::focusWidget());
  builtInCount_->setText(tr("Built-in emojis: %1").arg(services_.snippetStore.builtInSnippets().size()));
  export_->setEnabled(!isEmpty);
  list_->setVisible(!isEmpty);
  emptyState_->setVisible(isEmpty);
  if (isEmpty && hadFocus) add_->setFocus();
}

void SnippetsSettingsTab::setSheet(SnippetSheetState state) {
  if (sheetState_ && sheet_ && sheetState_->identity() == state.identity()) return;
  delete sheet_;
  sheetState_ = std::move(state);
  sheet_ = new SnippetEditorView(services_, sheetState_->editingSnippet(), this);
  sheet_->setAttribute(Qt::WA_DeleteOnClose);
  connect(sheet_, &QDialog::finished, this, [this] { sheetState_.reset(); });
  sheet_->open();
}

void SnippetsSettingsTab::remove(const QModelIndex& index) {
  services_.snippetStore.deleteSnippet(model_->snippet(index).id);
}

void SnippetsSettingsTab::chooseImport() {
  dialogs_.open(*this, [this](const std::filesystem::path& file) { importFrom(file); });
}

void SnippetsSettingsTab::importFrom(const std::filesystem::path& path) {
  if (reading_.isRunning()) return;
  import_->setEnabled(false);
  reading_.start(path, {.triggerCharacter = preferences::currentTriggerCharacter(services_.userDefaults)});
}

void SnippetsSettingsTab::dragEnterEvent(QDragEnterEvent* event) {
  if (droppedPath(*event->mimeData())) event->acceptProposedAction();
}

void SnippetsSettingsTab::dropEvent(QDropEvent* event) {
  const auto path = droppedPath(*event->mimeData());
  if (!path) return;
  // Whoever drags a file here means to keep it.
  event->setDropAction(Qt::CopyAction);
  event->accept();
  importFrom(*path);
}

void SnippetsSettingsTab::finishImport(const SnippetFileReading::Result& result) {
  import_->setEnabled(true);
  if (!result.error.empty()) {
    setMessage(tr("Import failed: %1").arg(QString::fromStdString(result.error)));
    return;
  }
  // They are in the list also where saving them fails, which is logged and done again later.
  const auto count = static_cast<int>(services_.snippetStore.addImported(result.read.snippets));
  const QString message = count == 1 ? tr("Imported 1 snippet") : tr("Imported %n snippets", nullptr, count);
  setMessage(message);
  showNotes(message, result.read);
}

void SnippetsSettingsTab::showNotes(const QString& message, const ForeignSnippets& read) {
  const std::string notes = notesOf(read);
  if (notes.empty()) return;
  auto* dialog =
      new QMessageBox(QMessageBox::Information, tr("Import Snippets"), message, QMessageBox::Ok, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setInformativeText(
      tr("Left out: %1. Changed: %2.").arg(read.leftOut.size()).arg(read.changed.size()));
  dialog->setDetailedText(QString::fromStdString(notes));
  dialog->open();
}

void SnippetsSettingsTab::setMessage(const QString& message) {
  message_->setText(message);
  if (!message_->isHidden()) return;
  message_->show();
  services_.mainQueue.after(messageDuration, [self = QPointer<SnippetsSettingsTab>(this)] {
    if (self) self->message_->hide();
  });
}

void SnippetsSettingsTab::chooseExport() {
  // Before any file is chosen: none of them could be written.
  if (const auto problem = services_.snippetStore.exportProblem()) {
    log("Settings", "Export failed: " + *problem);
    setMessage(tr("Export failed: %1").arg(QString::fromStdString(*problem)));
    return;
  }
  dialogs_.save(*this, [this](const std::filesystem::path& file) { exportTo(file); });
}

void SnippetsSettingsTab::exportTo(const std::filesystem::path& file) {
  try {
    services_.snippetStore.exportSnippets(file);
  } catch (const std::exception& error) {
    log("Settings", std::string("Export failed: ") + error.what());
  }
}

}  // namespace tessarin::ui
