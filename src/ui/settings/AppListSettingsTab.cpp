#include "ui/settings/AppListSettingsTab.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "ui/settings/AppListView.h"
#include "ui/settings/RunningAppsGrid.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int appListSpacing = 12;
constexpr int lowestList = 100;

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

}  // namespace

AppListSettingsTab::AppListSettingsTab(const SettingsServices& services, AppList list, const Texts& texts,
                                       QWidget* parent)
    : QWidget(parent),
      services_(services),
      list_(std::move(list)),
      entries_(
          new AppListView(services.workspace, [this](const std::string& bundleID) { remove(bundleID); })),
      grid_(new RunningAppsGrid([this](const std::string& bundleID) { add(bundleID); })),
      manualBundleID_(new QLineEdit),
      addButton_(new QPushButton(tr("Add"))) {
  auto* description = new StyledLabel(texts.description, TextStyle::caption, ColorRole::secondary);
  description->wrapped();
  entries_->setMinimumHeight(lowestList);
  entries_->setAccessibleName(texts.title);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(tabPadding, tabPadding, tabPadding, tabPadding);
  layout->setSpacing(appListSpacing);
  layout->addWidget(new StyledLabel(texts.title, TextStyle::headline));
  layout->addWidget(description);
  layout->addWidget(entries_, 1);
  layout->addWidget(makeDivider());
  layout->addWidget(new StyledLabel(tr("Add from running apps"), TextStyle::subheadline));
  layout->addWidget(grid_);
  layout->addWidget(makeManualEntry(texts.placeholder));
  showList();
}

QWidget* AppListSettingsTab::makeManualEntry(const QString& placeholder) {
  auto* entry = new QWidget;
  auto* label = new QLabel(tr("Bundle ID"));
  label->setBuddy(manualBundleID_);
  addButton_->setEnabled(false);
  manualBundleID_->setPlaceholderText(placeholder);
  manualBundleID_->setAccessibleName(label->text());
  connect(manualBundleID_, &QLineEdit::textChanged, this,
          [this](const QString& text) { addButton_->setEnabled(!trimmedOfBlanks(text).isEmpty()); });
  connect(addButton_, &QPushButton::clicked, this, &AppListSettingsTab::addManualEntry);
  auto* row = new QHBoxLayout(entry);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(label);
  row->addWidget(manualBundleID_, 1);
  row->addWidget(addButton_);
  return entry;
}

void AppListSettingsTab::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  runningApps_ = runningApps(services_.workspace);
  showList();
}

void AppListSettingsTab::add(const std::string& bundleID) {
  list_.add(bundleID);
  showList();
}

void AppListSettingsTab::addManualEntry() {
  add(trimmedOfBlanks(manualBundleID_->text()).toStdString());
  manualBundleID_->clear();
}

void AppListSettingsTab::remove(const std::string& bundleID) {
  list_.remove(bundleID);
  showList();
}

void AppListSettingsTab::showList() {
  entries_->setEntries(list_.entries());
  std::vector<RunningAppInfo> offered;
  for (const RunningAppInfo& app : runningApps_) {
    if (!list_.contains(app.bundleID)) offered.push_back(app);
  }
  grid_->setApps(offered);
  orderFocus();
}

/// From top to bottom: what is made anew would else come last.
void AppListSettingsTab::orderFocus() {
  QWidget* last = entries_;
  const QList<QWidget*> entry{manualBundleID_, addButton_};
  for (QWidget* next : entries_->buttons() + grid_->buttons() + entry) {
    setTabOrder(last, next);
    last = next;
  }
}

}  // namespace tessarin::ui
