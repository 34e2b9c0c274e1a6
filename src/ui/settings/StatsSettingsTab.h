#pragma once

#include <QWidget>
#include <memory>

#include "base/Subscription.h"

class QListWidget;
class QStackedLayout;

namespace tessarin {
class MainQueue;
class UsageTracker;
class UserDefaults;
}  // namespace tessarin

namespace tessarin::ui {

class BarChart;
class StatCard;

/// The tab that shows how much the expander is used, live.
class StatsSettingsTab final : public QWidget {
  Q_OBJECT

 public:
  /// All outlive the tab.
  StatsSettingsTab(UsageTracker& tracker, UserDefaults& defaults, MainQueue& queue,
                   QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* makeCards();
  QWidget* makeChart();
  QWidget* makeMostUsed();
  /// Once, a little later, for all changes that come together; not while the tab is hidden.
  void refreshSoon();
  void refresh();
  void showDays();
  void showTriggers();

  UsageTracker& tracker_;
  UserDefaults& defaults_;
  MainQueue& queue_;
  StatCard* total_;
  StatCard* today_;
  BarChart* chart_;
  QStackedLayout* chartOrNote_;
  QListWidget* triggers_;
  QStackedLayout* triggersOrNote_;
  bool isRefreshing_ = false;
  Subscription recordings_;
  Subscription preferences_;
  std::shared_ptr<char> alive_ = std::make_shared<char>();
};

}  // namespace tessarin::ui
