#include "ui/settings/AppListView.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <optional>
#include <utility>

#include "platform/Workspace.h"
#include "ui/settings/ApplicationIcon.h"
#include "ui/settings/ShortLabel.h"
#include "ui/style/Symbol.h"

namespace tessarin::ui {
namespace {

constexpr int iconSize = 20;
constexpr int appRowSpacing = 8;

QLabel* makeIcon(const QIcon& icon) {
  auto* label = new QLabel;
  label->setPixmap(icon.pixmap(iconSize, iconSize));
  label->setFixedSize(iconSize, iconSize);
  return label;
}

ShortLabel* makeLine(const QString& text, TextStyle style, ColorRole color = ColorRole::primary) {
  auto* line = new ShortLabel(1, style, color);
  line->setText(text);
  return line;
}

/// Name over identifier where the application is installed, with its icon if it has one; else the identifier
/// alone.
void describe(QHBoxLayout* row, const QString& bundleID, const std::optional<ApplicationInfo>& installed) {
  if (!installed) return row->addWidget(makeLine(bundleID, TextStyle::monospacedBody), 1, Qt::AlignVCenter);
  const QIcon icon = applicationIcon(installed->icon);
  if (!icon.isNull()) row->addWidget(makeIcon(icon));
  auto* lines = new QVBoxLayout;
  lines->setSpacing(0);
  lines->addWidget(makeLine(QString::fromStdString(installed->name), TextStyle::body));
  lines->addWidget(makeLine(bundleID, TextStyle::caption, ColorRole::secondary));
  row->addLayout(lines, 1);
}

}  // namespace

AppListView::AppListView(Workspace& workspace, std::function<void(const std::string&)> remove,
                         QWidget* parent)
    : QListWidget(parent), workspace_(workspace), remove_(std::move(remove)) {
  setSelectionMode(NoSelection);
  setResizeMode(Adjust);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

void AppListView::setEntries(const std::vector<std::string>& bundleIDs) {
  const auto focused = static_cast<int>(buttons_.indexOf(QApplication::focusWidget()));
  const int current = currentRow();
  const int scrolled = verticalScrollBar()->value();
  clear();
  buttons_.clear();
  bundleIDs_ = bundleIDs;
  for (const std::string& bundleID : bundleIDs_) addRow(bundleID);
  doItemsLayout();
  verticalScrollBar()->setValue(scrolled);
  restoreFocus(focused, current);
}

void AppListView::addRow(const std::string& bundleID) {
  const QString identifier = QString::fromStdString(bundleID);
  const auto installed = workspace_.application(bundleID);
  auto* row = new QWidget;
  row->setToolTip(identifier);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(6, 3, 6, 3);
  layout->setSpacing(appRowSpacing);
  describe(layout, identifier, installed);
  buttons_ << makeButton(bundleID, installed ? QString::fromStdString(installed->name) : identifier);
  layout->addWidget(buttons_.last());
  auto* item = new QListWidgetItem(this);
  item->setData(Qt::AccessibleTextRole, identifier);
  item->setSizeHint({0, row->sizeHint().height()});  // as wide as the list: long texts are cut
  setItemWidget(item, row);
}

QWidget* AppListView::makeButton(const std::string& bundleID, const QString& name) {
  auto* trash = new QToolButton;
  trash->setIcon(symbolIcon("trash", ColorRole::red));
  trash->setAutoRaise(true);
  trash->setFocusPolicy(Qt::StrongFocus);
  trash->setAccessibleName(tr("Remove %1").arg(name));
  trash->setToolTip(trash->accessibleName());
  trash->installEventFilter(this);
  // Later: the row that holds the button goes.
  connect(
      trash, &QToolButton::clicked, this, [this, bundleID] { remove_(bundleID); }, Qt::QueuedConnection);
  return trash;
}

void AppListView::restoreFocus(int focusedButton, int currentRow) {
  const int last = count() - 1;
  if (currentRow >= 0 && last >= 0) setCurrentRow(std::min(currentRow, last));
  if (focusedButton < 0) return;
  QWidget* target = last < 0 ? this : buttons_[std::min(focusedButton, last)];
  target->setFocus(Qt::OtherFocusReason);
}

/// A button that the keyboard comes to is brought into view.
bool AppListView::eventFilter(QObject* watched, QEvent* event) {
  const bool isFocus =
      event->type() == QEvent::FocusIn && static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason;
  const qsizetype row = isFocus ? buttons_.indexOf(qobject_cast<QWidget*>(watched)) : -1;
  if (row >= 0) scrollToItem(item(static_cast<int>(row)));
  return QListWidget::eventFilter(watched, event);
}

void AppListView::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  if (currentRow() < 0 && event->reason() != Qt::MouseFocusReason) setCurrentRow(0);
}

void AppListView::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Delete) return QListWidget::keyPressEvent(event);
  if (currentRow() >= 0) remove_(std::string(bundleIDs_[static_cast<std::size_t>(currentRow())]));
}

}  // namespace tessarin::ui
