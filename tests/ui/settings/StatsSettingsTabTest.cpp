#include <QAccessible>

#include "Matchers.h"
#include "model/UsageTracker.h"
#include "support/FakeUserDefaults.h"
#include "support/ManualMainQueue.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"
#include "ui/settings/BarChart.h"
#include "ui/settings/MostUsedList.h"
#include "ui/settings/StatsSettingsTab.h"

namespace tessarin::ui {
namespace {

TEST(ChartAxis, HasRoundStepsOfWholeCounts) {
  EXPECT_EQ(ChartAxis::reaching(0, 4), (ChartAxis{1, 1}));
  EXPECT_EQ(ChartAxis::reaching(5, 4), (ChartAxis{2, 6}));
  EXPECT_EQ(ChartAxis::reaching(25, 4), (ChartAxis{10, 30}));
  EXPECT_EQ(ChartAxis::reaching(10001, 4), (ChartAxis{5000, 15000}));
}

/// The tab over a tracker whose clock stands at a Saturday's noon.
class StatsSettingsTabTest : public ::testing::Test {
 protected:
  void record(const std::string& trigger, int times = 1) {
    while (times-- > 0) tracker.recordUsage(trigger);
  }
  void passDays(int days) { clock.time += std::chrono::hours(24 * days); }

  std::vector<std::int64_t> bars() const {
    std::vector<std::int64_t> counts;
    for (const auto& bar : chart().bars()) counts.push_back(bar.count);
    return counts;
  }
  /// As a screen reader reads them.
  std::vector<std::string> rows() const {
    std::vector<std::string> result;
    const auto* list = tab->findChild<MostUsedList*>();
    for (int row = 0; row < list->count(); ++row) {
      result.push_back(list->item(row)->data(Qt::AccessibleTextRole).toString().toStdString());
    }
    return result;
  }
  const BarChart& chart() const { return *tab->findChild<BarChart*>(); }

  testing::TemporaryFolder folder;
  testing::ManualWallClock clock{testing::ManualWallClock::utc(2026, 3, 14, 12)};
  testing::FakeUserDefaults defaults;
  testing::ManualMainQueue queue;
  UsageTracker tracker{folder.path(), clock};
  std::unique_ptr<StatsSettingsTab> tab = std::make_unique<StatsSettingsTab>(tracker, defaults, queue);
};

TEST_F(StatsSettingsTabTest, ShowsTodayLast) {
  record("wave", 2);
  passDays(4);
  record("smile", 4);
  tab->show();
  EXPECT_THAT(bars(), ElementsAre(0, 0, 2, 0, 0, 0, 4));
  EXPECT_TRUE(chart().accessibleDescription().endsWith("Day: Wednesday, Count: 4"));
  passDays(1);
  defaults.set("triggerCharacter", ";");
  record("wave");
  queue.runReady();
  EXPECT_THAT(bars(), ElementsAre(0, 2, 0, 0, 0, 4, 1));
  EXPECT_THAT(rows(), ElementsAre("1. ;smile;, 4", "2. ;wave;, 3"));
}

TEST_F(StatsSettingsTabTest, FollowsExpansionsOnceForSeveralWhileItIsSeen) {
  record("smile");
  EXPECT_EQ(queue.pending(), 0U);
  tab->show();
  EXPECT_THAT(rows(), ElementsAre("1. :smile:, 1"));
  record("smile", 2);
  EXPECT_EQ(queue.pending(), 1U) << "recording does not wait for the picture";
  queue.runReady();
  EXPECT_THAT(rows(), ElementsAre("1. :smile:, 3"));
  record("smile");
  tab.reset();
  queue.runReady();
}

}  // namespace
}  // namespace tessarin::ui
