#include <gmock/gmock.h>

#include <memory>

#include "model/UsageTracker.h"
#include "support/LogRecorder.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using testing::LogRecorder;
using testing::ManualWallClock;
using ::testing::Pair;
using ::testing::StartsWith;
using testing::TemporaryFolder;

const std::string countsFile = "usage-counts.json";
const std::string eventsFile = "usage-stats.json";

class UsageTrackerTest : public ::testing::Test {
 protected:
  std::unique_ptr<UsageTracker> makeTracker(const std::string& timeZone = "UTC") const {
    return std::make_unique<UsageTracker>(folder_.path(), clock_, LocalCalendar(timeZone));
  }

  TemporaryFolder folder_;
  ManualWallClock clock_;
  LogRecorder log_;
};

std::vector<std::int64_t> countsOf(const std::vector<UsageTracker::DayCount>& days) {
  std::vector<std::int64_t> counts;
  for (const auto& day : days) counts.push_back(day.count);
  return counts;
}

TEST_F(UsageTrackerTest, RecordsIntoBothFilesAndReadsThemBack) {
  const fs::path storage = folder_ / "not/there/yet";
  UsageTracker first(storage, clock_);
  clock_.time = ManualWallClock::utc(2026, 3, 14, 9, 30, 15) + std::chrono::milliseconds(250);
  first.recordUsage("smile");
  clock_.time = ManualWallClock::utc(2026, 3, 14, 9, 30, 16);
  first.recordUsage("a/\"b\"\n");
  first.recordUsage("smile");
  EXPECT_THAT(first.usageCounts(), ElementsAre(Pair("a/\"b\"\n", 1), Pair("smile", 2)));
  EXPECT_EQ(folder_.read("not/there/yet/usage-counts.json"), R"({"a\/\"b\"\u000a":1,"smile":2})");
  EXPECT_EQ(
      folder_.read("not/there/yet/usage-stats.json"),
      R"([{"trigger":"smile","timestamp":795173415.25},{"trigger":"a\/\"b\"\u000a","timestamp":795173416},)"
      R"({"trigger":"smile","timestamp":795173416}])");

  const UsageTracker second(storage, clock_);
  EXPECT_EQ(second.usageCounts(), first.usageCounts());
  EXPECT_EQ(second.usageEvents(), first.usageEvents());
  EXPECT_THAT(log_.lines, IsEmpty());
}

TEST_F(UsageTrackerTest, KeepsTheLatestTenThousandEvents) {
  UsageEventsText text;
  for (std::size_t i = 0; i < UsageTracker::maxEvents + 5; ++i) text.append({"t", static_cast<double>(i)});
  folder_.write(eventsFile, text.json());
  const auto tracker = makeTracker();
  EXPECT_EQ(tracker->usageEvents().size(), UsageTracker::maxEvents + 5);
  tracker->recordUsage("t");
  tracker->recordUsage("last");
  ASSERT_EQ(tracker->usageEvents().size(), UsageTracker::maxEvents);
  EXPECT_EQ(tracker->usageEvents().front().timestamp, 7);
  EXPECT_EQ(tracker->usageEvents().back().trigger, "last");
  EXPECT_EQ(makeTracker()->usageEvents(), tracker->usageEvents());
  EXPECT_EQ(tracker->totalExpansions(), 2);
}

TEST_F(UsageTrackerTest, NoTriggerMakesAFileUnreadable) {
  const auto tracker = makeTracker();
  for (const auto& trigger : {std::string("\xFF"), std::string("a\0\x1F\\", 4), std::string()}) {
    tracker->recordUsage(trigger);
  }
  EXPECT_EQ(makeTracker()->usageEvents().size(), 3U);
  EXPECT_EQ(makeTracker()->totalExpansions(), 3);
}

TEST_F(UsageTrackerTest, UnreadableFilesAreLeftAloneAndMovedAsideBeforeTheFirstRecording) {
  const char* counts = R"({"a":1.0})";
  const char* events = R"([{"trigger":"a","timestamp":1e999}])";
  folder_.write(countsFile, counts);
  folder_.write(eventsFile, events);
  const auto tracker = makeTracker("Europe/Berlin");
  EXPECT_THAT(tracker->usageCounts(), IsEmpty());
  EXPECT_THAT(tracker->usageEvents(), IsEmpty());
  EXPECT_THAT(log_.lines, ElementsAre(StartsWith("[UsageTracker] Failed to load usage counts: "),
                                      StartsWith("[UsageTracker] Failed to load usage events: ")));
  EXPECT_EQ(folder_.read(countsFile), counts);
  EXPECT_EQ(folder_.read(eventsFile), events);

  tracker->recordUsage("a");
  tracker->recordUsage("a");
  const std::string suffix = ".unreadable-2026-03-14T10-30-00";
  EXPECT_THAT(folder_.names(), ElementsAre(countsFile, countsFile + suffix, eventsFile, eventsFile + suffix));
  EXPECT_EQ(folder_.read(countsFile + suffix), counts);
  EXPECT_EQ(folder_.read(eventsFile + suffix), events);
  EXPECT_EQ(makeTracker()->usageEvents().size(), 2U);
}

TEST_F(UsageTrackerTest, AClockThatJumpsLosesNothing) {
  using Clock = ManualWallClock;
  const auto today = Clock::utc(2026, 3, 14, 9, 30);
  auto tracker = makeTracker();
  int count = 0;
  for (const auto time : {today, Clock::utc(2199, 12, 31), Clock::utc(1970, 1, 1), Clock::utc(1969, 7, 20),
                          today - std::chrono::hours(48), today}) {
    clock_.time = time;
    tracker->recordUsage("a");
    ++count;
    EXPECT_GE(tracker->todayCount(), 1);
    EXPECT_EQ(tracker->dailyCounts().size(), 7U);
    const auto events = tracker->usageEvents();
    tracker = makeTracker();
    EXPECT_EQ(tracker->usageEvents(), events);
    EXPECT_EQ(tracker->totalExpansions(), count);
  }
  EXPECT_THAT(countsOf(tracker->dailyCounts()), ElementsAre(0, 0, 0, 0, 1, 0, 2));
}

TEST_F(UsageTrackerTest, DaysAreWholeCalendarDays) {
  using Clock = ManualWallClock;
  const struct {
    const char* timeZone;
    WallClock::TimePoint now;
    std::vector<WallClock::TimePoint> starts;  // of the last three days
  } cases[] = {
      // 23 hours on 29 March
      {"Europe/Berlin",
       Clock::utc(2026, 3, 30, 12),
       {Clock::utc(2026, 3, 27, 23), Clock::utc(2026, 3, 28, 23), Clock::utc(2026, 3, 29, 22)}},
      // midnight of 4 November is skipped: the day begins at one
      {"America/Sao_Paulo",
       Clock::utc(2018, 11, 5, 12),
       {Clock::utc(2018, 11, 3, 3), Clock::utc(2018, 11, 4, 3), Clock::utc(2018, 11, 5, 2)}},
  };
  for (const auto& [timeZone, now, starts] : cases) {
    clock_.time = now;
    UsageEventsText text;
    for (const auto start : starts) {
      for (const double s : {-1.0, 0.0}) text.append({"t", secondsSinceReferenceDate(start) + s});
    }
    folder_.write(eventsFile, text.json());
    const auto days = makeTracker(timeZone)->dailyCounts();
    EXPECT_THAT(countsOf(days), ElementsAre(0, 0, 0, 1, 2, 2, 1)) << timeZone;
    for (std::size_t i = 0; i < starts.size(); ++i) EXPECT_EQ(days[4 + i].date, starts[i]) << timeZone;
  }
}

}  // namespace
}  // namespace tessarin
