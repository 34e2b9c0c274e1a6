#include "ui/settings/AppListSettingsTab.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <utility>

#include "platform/Workspace.h"
#include "ui/style/FlowGrid.h"
#include "ui/style/ScrollPane.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"
#include "ui/style/Symbol.h"

namespace tessarin::ui {
namespace {

constexpr int spacing = 12;
constexpr int lowestList = 100;
constexpr int highestGrid = 120;
constexpr int rowIcon = 20;
constexpr int buttonIcon = 16;
constexpr FlowGrid::Spacing gridSpacing{120, 8, 6};

QString trimmedOfBlanks(const QString& text) {
  const auto isBlank = [](QChar character) { return character == ' ' || character == '\t'; };
  qsizetype begin = 0;
  qsizetype end = text.size();
  while (begin < end && isBlank(text[begin])) ++begin;
  while (end > begin && isBlank(text[end - 1])) --end;
  return text.mid(begin, end - begin);
}

QFrame* makeDivider() {
  auto* divider = new QFrame;
  divider->setFrameShape(QFrame::HLine);
  divider->setFrameShadow(QFrame::Sunken);
  return divider;
}

QLabel* makeIcon(const QIcon& icon) {
  auto* label = new QLabel;
  label->setPixmap(icon.pixmap(rowIcon, rowIcon));
  label->setFixedSize(rowIcon, rowIcon);
  return label;
}

/// Name over identifier where the application is installed, with its icon if it has one; else the identifier
/// alone.
void describe(QHBoxLayout* row, const QString& bundleID, const std::optional<ApplicationInfo>& installed) {
  row->setSpacing(8);
  if (!installed) return row->addWidget(new StyledLabel(bundleID, TextStyle::monospacedBody));
  const QIcon icon = applicationIcon(installed->icon);
  if (!icon.isNull()) row->addWidget(makeIcon(icon));
  auto* lines = new QVBoxLayout;
  lines->setSpacing(0);
  lines->addWidget(new StyledLabel(QString::fromStdString(installed->name)));
  lines->addWidget(new StyledLabel(bundleID, TextStyle::caption, ColorRole::secondary));
  row->addLayout(lines);
}

}  // namespace

AppListSettingsTab::AppListSettingsTab(const SettingsServices& services, AppList list, const Texts& texts,
                                       QWidget* parent)
    : QWidget(parent),
      services_(services),
      list_(std::move(list)),
      entries_(new QListWidget),
      appButtons_(new QWidget),
      grid_(new FlowGrid(gridSpacing, appButtons_)),
      manualBundleID_(new QLineEdit) {
  auto* description = new StyledLabel(texts.description, TextStyle::caption, ColorRole::secondary);
  description->wrapped();
  entries_->setMinimumHeight(lowestList);
  entries_->setAccessibleName(texts.title);
  entries_->setSelectionMode(QAbstractItemView::NoSelection);
  entries_->setResizeMode(QListView::Adjust);
  entries_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(tabPadding, tabPadding, tabPadding, tabPadding);
  layout->setSpacing(spacing);
  layout->addWidget(new StyledLabel(texts.title, TextStyle::headline));
  layout->addWidget(description);
  layout->addWidget(entries_, 1);
  layout->addWidget(makeDivider());
  layout->addWidget(new StyledLabel(tr("Add from running apps"), TextStyle::subheadline));
  layout->addWidget(makeRunningApps());
  layout->addWidget(makeManualEntry(texts.placeholder));
  showEntries();
}

QWidget* AppListSettingsTab::makeRunningApps() {
  auto* area = new ScrollPane(appButtons_);
  area->setMaximumHeight(highestGrid);
  area->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  return area;
}

QWidget* AppListSettingsTab::makeManualEntry(const QString& placeholder) {
  auto* entry = new QWidget;
  auto* label = new QLabel(tr("Bundle ID"));
  label->setBuddy(manualBundleID_);
  auto* addButton = new QPushButton(tr("Add"));
  addButton->setEnabled(false);
  manualBundleID_->setPlaceholderText(placeholder);
  manualBundleID_->setAccessibleName(label->text());
  connect(manualBundleID_, &QLineEdit::textChanged, addButton,
          [addButton](const QString& text) { addButton->setEnabled(!trimmedOfBlanks(text).isEmpty()); });
  connect(addButton, &QPushButton::clicked, this, &AppListSettingsTab::addManualEntry);
  auto* row = new QHBoxLayout(entry);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(label);
  row->addWidget(manualBundleID_, 1);
  row->addWidget(addButton);
  return entry;
}

QWidget* AppListSettingsTab::makeRow(const std::string& bundleID) {
  const QString identifier = QString::fromStdString(bundleID);
  const auto installed = services_.workspace.application(bundleID);
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(6, 3, 6, 3);
  describe(layout, identifier, installed);
  layout->addStretch(1);
  auto* trash = new QToolButton;
  trash->setIcon(symbolIcon("trash", ColorRole::red));
  trash->setAutoRaise(true);
  trash->setFocusPolicy(Qt::StrongFocus);
  const QString name = installed ? QString::fromStdString(installed->name) : identifier;
  trash->setAccessibleName(tr("Remove %1").arg(name));
  trash->setToolTip(trash->accessibleName());
  // Later: the row that holds the button goes.
  connect(
      trash, &QToolButton::clicked, this, [this, bundleID] { remove(bundleID); }, Qt::QueuedConnection);
  layout->addWidget(trash);
  return row;
}

QWidget* AppListSettingsTab::makeAppButton(const RunningAppInfo& app) {
  auto* button = new QPushButton;
  auto* label = new QHBoxLayout(button);
  label->setContentsMargins(8, 4, 8, 4);
  label->setSpacing(4);
  if (!app.icon.isNull()) {
    auto* icon = new QLabel;
    icon->setPixmap(app.icon.pixmap(buttonIcon, buttonIcon));
    icon->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->addWidget(icon);
  }
  auto* name = new StyledLabel(app.name, TextStyle::caption);
  name->setAttribute(Qt::WA_TransparentForMouseEvents);
  name->setMinimumWidth(1);
  label->addWidget(name, 1);
  button->setMinimumHeight(label->sizeHint().height());
  button->setAccessibleName(tr("Add %1").arg(app.name));
  button->setToolTip(app.name);
  connect(
      button, &QPushButton::clicked, this, [this, bundleID = app.bundleID] { add(bundleID); },
      Qt::QueuedConnection);
  return button;
}

void AppListSettingsTab::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  runningApps_ = runningApps(services_.workspace);
  showRunningApps();
}

void AppListSettingsTab::add(const std::string& bundleID) {
  list_.add(bundleID);
  showEntries();
  showRunningApps();
}

void AppListSettingsTab::addManualEntry() {
  add(trimmedOfBlanks(manualBundleID_->text()).toStdString());
  manualBundleID_->clear();
}

void AppListSettingsTab::remove(const std::string& bundleID) {
  list_.remove(bundleID);
  showEntries();
  showRunningApps();
}

void AppListSettingsTab::showEntries() {
  const int scrolled = entries_->verticalScrollBar()->value();
  entries_->clear();
  for (const std::string& bundleID : list_.entries()) {
    auto* item = new QListWidgetItem(entries_);
    QWidget* row = makeRow(bundleID);
    item->setData(Qt::AccessibleTextRole, QString::fromStdString(bundleID));
    item->setSizeHint(row->sizeHint());
    entries_->setItemWidget(item, row);
  }
  entries_->doItemsLayout();
  entries_->verticalScrollBar()->setValue(scrolled);
}

void AppListSettingsTab::showRunningApps() {
  grid_->clear();
  for (const RunningAppInfo& app : runningApps_) {
    if (!list_.contains(app.bundleID)) grid_->addWidget(makeAppButton(app));
  }
}

}  // namespace tessarin::ui
