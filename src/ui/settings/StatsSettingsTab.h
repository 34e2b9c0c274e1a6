#pragma once

#include <QWidget>

#include "base/Subscription.h"

class QVBoxLayout;

namespace tessarin {

class MainQueue;
class UsageTracker;
class UserDefaults;

namespace ui {

class BarChart;
class MostUsedList;
class StatCard;
class StyledLabel;

/// How much the expander is used: two numbers, the last seven days as bars, and the ten triggers used most.
/// Keeps nothing itself: while it is shown it reads everything anew soon after each expansion, and whenever
/// it comes into view. All references outlive it.
class StatsSettingsTab final : public QWidget {
  Q_OBJECT

 public:
  StatsSettingsTab(UsageTracker& tracker, UserDefaults& defaults, MainQueue& queue,
                   QWidget* parent = nullptr);

  /// Room for all of it; with less it scrolls.
  QSize sizeHint() const override;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void putIntoScrollArea();
  void addCards(QVBoxLayout& column);
  void addChart(QVBoxLayout& column);
  void addMostUsed(QVBoxLayout& column);
  /// Soon, as an expansion that is being recorded must not wait for it; once for several.
  void refreshLater();
  void refresh();
  void refreshChart();
  void refreshMostUsed();

  UsageTracker& tracker_;
  UserDefaults& defaults_;
  MainQueue& queue_;
  QWidget* content_;
  StatCard* total_ = nullptr;
  StatCard* today_ = nullptr;
  StyledLabel* noUsage_ = nullptr;
  BarChart* chart_ = nullptr;
  StyledLabel* noneUsed_ = nullptr;
  MostUsedList* mostUsed_ = nullptr;
  bool isRefreshPending_ = false;
  Subscription usageObserver_;
  Subscription defaultsObserver_;
};

}  // namespace ui
}  // namespace tessarin
