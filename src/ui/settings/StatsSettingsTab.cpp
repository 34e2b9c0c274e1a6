#include "ui/settings/StatsSettingsTab.h"

#include <QDateTime>
#include <QHBoxLayout>
#include <QListWidget>
#include <QStackedLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "input/Preferences.h"
#include "model/UsageTracker.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"
#include "ui/settings/BarChart.h"
#include "ui/settings/StatCard.h"
#include "ui/style/ScrollPane.h"
#include "ui/style/Spacing.h"
#include "ui/style/StyledLabel.h"

namespace tessarin::ui {
namespace {

constexpr int spacing = 16;
constexpr int sectionSpacing = 8;
constexpr int chartHeight = 120;
constexpr int lowestList = 100;
constexpr int rankWidth = 24;
constexpr std::size_t mostRows = 10;

QString weekday(WallClock::TimePoint day, const QLocale& locale) {
  const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(day.time_since_epoch()).count();
  return locale.dayName(QDateTime::fromSecsSinceEpoch(seconds).date().dayOfWeek(), QLocale::ShortFormat);
}

QVBoxLayout* makeSection(QWidget* section, const QString& title) {
  auto* lines = new QVBoxLayout(section);
  lines->setContentsMargins(0, 0, 0, 0);
  lines->setSpacing(sectionSpacing);
  lines->addWidget(new StyledLabel(title, TextStyle::subheadline));
  return lines;
}

/// The widget, or the note while there is nothing to show in it.
QStackedLayout* makeStack(QWidget* widget, const QString& note, Qt::Alignment alignment) {
  auto* stack = new QStackedLayout;
  stack->addWidget(widget);
  auto* label = new StyledLabel(note, TextStyle::caption, ColorRole::secondary);
  label->setAlignment(alignment);
  stack->addWidget(label);
  return stack;
}

QWidget* makeRow(std::size_t rank, const QString& trigger, std::int64_t count) {
  auto* row = new QWidget;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(6, 4, 10, 4);
  layout->setSpacing(8);
  auto* number = new StyledLabel(QStringLiteral("%1.").arg(rank), TextStyle::body, ColorRole::secondary);
  number->setMinimumWidth(rankWidth);
  number->setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
  auto* uses = new StyledLabel(QString::number(count), TextStyle::subheadline, ColorRole::secondary);
  layout->addWidget(number);
  layout->addWidget(new StyledLabel(trigger, TextStyle::monospacedBody));
  layout->addStretch(1);
  layout->addWidget(uses);
  return row;
}

}  // namespace

StatsSettingsTab::StatsSettingsTab(UsageTracker& tracker, UserDefaults& defaults, MainQueue& queue,
                                   QWidget* parent)
    : QWidget(parent),
      tracker_(tracker),
      defaults_(defaults),
      queue_(queue),
      total_(new StatCard(tr("Total Expansions"))),
      today_(new StatCard(tr("Today"))),
      chart_(new BarChart),
      triggers_(new QListWidget) {
  auto* content = new QWidget;
  auto* layout = new QVBoxLayout(content);
  layout->setContentsMargins(tabPadding, tabPadding, tabPadding, tabPadding);
  layout->setSpacing(spacing);
  layout->addWidget(new StyledLabel(tr("Usage Statistics"), TextStyle::headline));
  layout->addWidget(makeCards());
  layout->addWidget(makeChart());
  layout->addWidget(makeMostUsed(), 1);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(new ScrollPane(content));
  recordings_ = tracker_.onRecorded([this](const std::string&) { refreshSoon(); });
  preferences_ = defaults_.onChange([this] { refreshSoon(); });
  refresh();
}

QWidget* StatsSettingsTab::makeCards() {
  auto* cards = new QWidget;
  auto* row = new QHBoxLayout(cards);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(spacing);
  row->addWidget(total_, 1);
  row->addWidget(today_, 1);
  return cards;
}

QWidget* StatsSettingsTab::makeChart() {
  auto* section = new QWidget;
  QVBoxLayout* lines = makeSection(section, tr("Last 7 Days"));
  chart_->setFixedHeight(chartHeight);
  chart_->setAccessibleName(tr("Last 7 Days"));
  auto* box = new QWidget;
  box->setFixedHeight(chartHeight);
  chartOrNote_ = makeStack(chart_, tr("No usage data yet"), Qt::AlignCenter);
  box->setLayout(chartOrNote_);
  lines->addWidget(box);
  return section;
}

QWidget* StatsSettingsTab::makeMostUsed() {
  auto* section = new QWidget;
  QVBoxLayout* lines = makeSection(section, tr("Most Used"));
  triggers_->setMinimumHeight(lowestList);
  triggers_->setSelectionMode(QAbstractItemView::NoSelection);
  triggers_->setAccessibleName(tr("Most Used"));
  triggersOrNote_ = makeStack(triggers_, tr("No snippets used yet"), Qt::AlignLeading | Qt::AlignTop);
  lines->addLayout(triggersOrNote_, 1);
  return section;
}

void StatsSettingsTab::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  refresh();
}

void StatsSettingsTab::refreshSoon() {
  if (!isVisible() || isRefreshing_) return;
  isRefreshing_ = true;
  queue_.async([this, weak = std::weak_ptr<char>(alive_)] {
    if (weak.expired()) return;
    isRefreshing_ = false;
    refresh();
  });
}

void StatsSettingsTab::refresh() {
  total_->setValue(QString::number(tracker_.totalExpansions()));
  today_->setValue(QString::number(tracker_.todayCount()));
  showDays();
  showTriggers();
}

void StatsSettingsTab::showDays() {
  std::vector<BarChart::Bar> bars;
  bool isEmpty = true;
  for (const UsageTracker::DayCount& day : tracker_.dailyCounts()) {
    bars.push_back({weekday(day.date, locale()), day.count});
    isEmpty = isEmpty && day.count == 0;
  }
  chart_->setBars(std::move(bars));
  chartOrNote_->setCurrentIndex(isEmpty ? 1 : 0);
}

void StatsSettingsTab::showTriggers() {
  const QString character = QString::fromStdString(preferences::currentTriggerCharacter(defaults_));
  const auto used = tracker_.topUsed(mostRows);
  triggers_->clear();
  for (std::size_t index = 0; index < used.size(); ++index) {
    const QString trigger = character + QString::fromStdString(used[index].trigger) + character;
    auto* item = new QListWidgetItem(triggers_);
    QWidget* row = makeRow(index + 1, trigger, used[index].count);
    item->setData(Qt::AccessibleTextRole,
                  QStringLiteral("%1. %2 %3").arg(index + 1).arg(trigger).arg(used[index].count));
    item->setSizeHint(row->sizeHint());
    triggers_->setItemWidget(item, row);
  }
  triggersOrNote_->setCurrentIndex(used.empty() ? 1 : 0);
}

}  // namespace tessarin::ui
