#include "ui/settings/StatsSettingsTab.h"

#include <QDateTime>
#include <QLocale>
#include <QPointer>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>
#include <vector>

#include "input/Preferences.h"
#include "model/UsageTracker.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"
#include "ui/settings/BarChart.h"
#include "ui/settings/MostUsedList.h"
#include "ui/settings/StatCard.h"
#include "ui/style/ScrollPane.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int partSpacing = 16;
constexpr int statsSpacing = 8;
constexpr std::size_t mostUsedCount = 10;

QVBoxLayout* addSection(QVBoxLayout& column, const QString& title) {
  auto* section = new QVBoxLayout;
  section->setSpacing(statsSpacing);
  section->addWidget(new StyledLabel(title, TextStyle::subheadline));
  column.addLayout(section);
  return section;
}

QDate dateOf(WallClock::TimePoint time) {
  const auto sinceEpoch = std::chrono::floor<std::chrono::milliseconds>(time.time_since_epoch());
  return QDateTime::fromMSecsSinceEpoch(sinceEpoch.count()).date();
}

BarChart::Bar barOf(const UsageTracker::DayCount& day, const QLocale& locale) {
  const int weekday = dateOf(day.date).dayOfWeek();
  return {locale.standaloneDayName(weekday, QLocale::ShortFormat),
          locale.standaloneDayName(weekday, QLocale::LongFormat), day.count};
}

}  // namespace

StatsSettingsTab::StatsSettingsTab(UsageTracker& tracker, UserDefaults& defaults, MainQueue& queue,
                                   QWidget* parent)
    : QWidget(parent), tracker_(tracker), defaults_(defaults), queue_(queue), content_(new QWidget) {
  auto* column = new QVBoxLayout(content_);
  column->setContentsMargins(tabPadding, tabPadding, tabPadding, tabPadding);
  column->setSpacing(partSpacing);
  column->addWidget(new StyledLabel(tr("Usage Statistics"), TextStyle::headline));
  addCards(*column);
  addChart(*column);
  addMostUsed(*column);
  column->addStretch(1);
  putIntoScrollArea();
  refresh();
  usageObserver_ = tracker_.onRecorded([this](const std::string&) { refreshLater(); });
  defaultsObserver_ = defaults_.onChange([this] { refreshLater(); });
}

void StatsSettingsTab::putIntoScrollArea() {
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(new ScrollPane(content_));
}

QSize StatsSettingsTab::sizeHint() const {
  return content_->sizeHint();
}

void StatsSettingsTab::addCards(QVBoxLayout& column) {
  total_ = new StatCard(tr("Total Expansions"));
  today_ = new StatCard(tr("Today"));
  auto* row = new QHBoxLayout;
  row->setSpacing(partSpacing);
  row->addWidget(total_, 1);
  row->addWidget(today_, 1);
  column.addLayout(row);
}

void StatsSettingsTab::addChart(QVBoxLayout& column) {
  const QString title = tr("Last 7 Days");
  noUsage_ = new StyledLabel(tr("No usage data yet"), TextStyle::caption, ColorRole::secondary);
  noUsage_->setFixedHeight(BarChart::chartHeight);
  chart_ = new BarChart;
  chart_->setAccessibleName(title);
  auto* section = addSection(column, title);
  section->addWidget(&noUsage_->centred());
  section->addWidget(chart_);
}

void StatsSettingsTab::addMostUsed(QVBoxLayout& column) {
  const QString title = tr("Most Used");
  noneUsed_ = new StyledLabel(tr("No snippets used yet"), TextStyle::caption, ColorRole::secondary);
  mostUsed_ = new MostUsedList;
  mostUsed_->setAccessibleName(title);
  auto* section = addSection(column, title);
  section->addWidget(noneUsed_);
  section->addWidget(mostUsed_);
}

void StatsSettingsTab::showEvent(QShowEvent* event) {
  refresh();
  QWidget::showEvent(event);
}

void StatsSettingsTab::refreshLater() {
  if (!isVisible() || std::exchange(isRefreshPending_, true)) return;
  queue_.async([tab = QPointer(this)] {
    if (!tab) return;
    tab->isRefreshPending_ = false;
    if (tab->isVisible()) tab->refresh();
  });
}

void StatsSettingsTab::refresh() {
  total_->setValue(QString::number(tracker_.totalExpansions()));
  today_->setValue(QString::number(tracker_.todayCount()));
  refreshChart();
  refreshMostUsed();
}

void StatsSettingsTab::refreshChart() {
  std::vector<BarChart::Bar> bars;
  for (const auto& day : tracker_.dailyCounts()) bars.push_back(barOf(day, locale()));
  const bool isUsed = std::any_of(bars.begin(), bars.end(), [](const auto& bar) { return bar.count != 0; });
  noUsage_->setVisible(!isUsed);
  chart_->setVisible(isUsed);
  chart_->setBars(std::move(bars));
}

void StatsSettingsTab::refreshMostUsed() {
  const QString mark = QString::fromStdString(preferences::currentTriggerCharacter(defaults_));
  std::vector<MostUsedList::Entry> entries;
  for (const auto& [trigger, count] : tracker_.topUsed(mostUsedCount)) {
    entries.push_back({mark + QString::fromStdString(trigger) + mark, count});
  }
  noneUsed_->setVisible(entries.empty());
  mostUsed_->setVisible(!entries.empty());
  mostUsed_->setEntries(entries);
}

}  // namespace tessarin::ui
