#include <array>
#include <numeric>

#include "Matchers.h"
#include "model/UsageTracker.h"
#include "support/LogRecorder.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;
using TriggerCount = UsageTracker::TriggerCount;

constexpr auto utc = [](auto... parts) { return ManualWallClock::utc(parts...); };
constexpr const char* countsFile = "usage-counts.json";
constexpr const char* eventsFile = "usage-stats.json";

class UsageTrackerTest : public ::testing::Test {
 protected:
  std::unique_ptr<UsageTracker> makeTracker(const std::string& timeZone = "UTC") const {
    return std::make_unique<UsageTracker>(folder_.path(), clock_, LocalCalendar(timeZone));
  }
  /// A tracker that loaded an event at each of the moments.
  std::unique_ptr<UsageTracker> makeTrackerOf(const std::vector<double>& seconds,
                                              const std::string& timeZone) const {
    UsageEventsText text;
    for (const double s : seconds) text.append({"t", s});
    folder_.write(eventsFile, text.json());
    return makeTracker(timeZone);
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
  clock_.time += std::chrono::milliseconds(15250);
  first.recordUsage("smile");
  clock_.time += std::chrono::milliseconds(750);
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
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(UsageTrackerTest, KeepsTheLatestTenThousandEvents) {
  std::vector<double> seconds(UsageTracker::maxEvents + 5);
  std::iota(seconds.begin(), seconds.end(), 0);
  const auto tracker = makeTrackerOf(seconds, "UTC");
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
  for (const std::string& trigger :
       {std::string("\xFF"), std::string("a\0b", 3), std::string("\x01\x1F\\"), std::string()}) {
    tracker->recordUsage(trigger);
  }
  const auto again = makeTracker();
  EXPECT_EQ(again->usageEvents().size(), 4U);
  EXPECT_TRUE(again->usageCounts().contains(std::string("a\0b", 3)));
  EXPECT_EQ(again->totalExpansions(), 4);
  EXPECT_THAT(log_.lines(), IsEmpty());
}

TEST_F(UsageTrackerTest, CountsSaturateAndTheTopIsHighestFirst) {
  folder_.write(countsFile, R"({"a":9223372036854775807,"b":5,"c":-3})");
  const auto tracker = makeTracker();
  tracker->recordUsage("a");
  EXPECT_THAT(tracker->topUsed(2), ElementsAre(TriggerCount{"a", INT64_MAX}, TriggerCount{"b", 5}));
  EXPECT_EQ(tracker->totalExpansions(), INT64_MAX - 3);
}

TEST_F(UsageTrackerTest, UnreadableFilesAreLeftAloneAndMovedAsideBeforeTheFirstRecording) {
  const std::pair<const char*, const char*> cases[] = {
      {countsFile, R"({"a":1.0})"}, {eventsFile, R"([{"trigger":"a","timestamp":1e999}])"}};
  for (const auto& [file, content] : cases) {
    const TemporaryFolder folder;
    folder.write(file, content);
    UsageTracker tracker(folder.path(), clock_, LocalCalendar("Europe/Berlin"));
    EXPECT_EQ(folder.read(file), content);
    for (int time = 0; time < 2; ++time) tracker.recordUsage("a");
    const std::string aside = std::string(file) + ".unreadable-2026-03-14T10-30-00";
    EXPECT_THAT(folder.names(), UnorderedElementsAre(countsFile, eventsFile, aside));
    EXPECT_EQ(folder.read(aside), content);
    EXPECT_EQ(UsageTracker(folder.path(), clock_).usageEvents().size(), 2U);
  }
}

TEST_F(UsageTrackerTest, AClockThatJumpsLosesNothing) {
  const auto today = utc(2026, 3, 14, 9, 30);
  auto tracker = makeTracker();
  int count = 0;
  for (const auto time :
       {today, utc(2199, 12, 31), utc(1970, 1, 1), utc(1969, 7, 20), today - std::chrono::hours(48), today}) {
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

TEST_F(UsageTrackerTest, TodayBeginsAtLocalMidnightAndHasNoEnd) {
  const double midnight = secondsSinceReferenceDate(utc(2026, 3, 13, 23));  // in Berlin
  const auto tracker =
      makeTrackerOf({midnight - 0.001, midnight, midnight + 1, midnight + 1e6}, "Europe/Berlin");
  EXPECT_EQ(tracker->todayCount(), 3);
  EXPECT_THAT(countsOf(tracker->dailyCounts()), ElementsAre(0, 0, 0, 0, 0, 1, 2));
}

TEST_F(UsageTrackerTest, DaysAreWholeCalendarDays) {
  const struct {
    const char* timeZone;
    WallClock::TimePoint now;
    std::array<WallClock::TimePoint, 3> starts;  // the last of the seven days and the one after
  } cases[] = {
      // 23 hours on 29 March, 25 hours on 25 October
      {"Europe/Berlin",
       utc(2026, 3, 30, 12),
       {utc(2026, 3, 27, 23), utc(2026, 3, 28, 23), utc(2026, 3, 29, 22)}},
      {"Europe/Berlin",
       utc(2026, 10, 26, 22, 59),
       {utc(2026, 10, 23, 22), utc(2026, 10, 24, 22), utc(2026, 10, 25, 23)}},
      // midnight of 4 November is skipped: the day begins at one
      {"America/Sao_Paulo",
       utc(2018, 11, 5, 12),
       {utc(2018, 11, 3, 3), utc(2018, 11, 4, 3), utc(2018, 11, 5, 2)}},
  };
  for (const auto& [timeZone, now, starts] : cases) {
    clock_.time = now;
    std::vector<double> seconds;
    for (const auto start : starts) {
      seconds.push_back(secondsSinceReferenceDate(start) - 1);
      seconds.push_back(secondsSinceReferenceDate(start));
    }
    const auto days = makeTrackerOf(seconds, timeZone)->dailyCounts();
    ASSERT_EQ(days.size(), 7U);
    EXPECT_EQ(days.back().date, starts.back()) << timeZone;
    EXPECT_EQ(days[4].date, starts[0]) << timeZone;
    EXPECT_EQ(days[5].date, starts[1]) << timeZone;
    EXPECT_THAT(countsOf(days), ElementsAre(0, 0, 0, 1, 2, 2, 1)) << timeZone;
  }
}

}  // namespace
}  // namespace tessarin::testing
