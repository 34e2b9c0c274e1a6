#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "base/Signal.h"
#include "model/DataFile.h"
#include "model/LocalCalendar.h"
#include "model/UsageCoding.h"
#include "model/UsageEvent.h"

namespace tessarin {

/// Remembers which triggers the user expands: a count for each, which lifts it in the search, and a log of
/// the latest expansions for the statistics. Both are read from the storage folder at construction and
/// written back after every recording. Main thread.
class UsageTracker {
 public:
  /// Most events kept; with these the event file stays below a megabyte.
  static constexpr std::size_t maxEvents = 10000;

  struct TriggerCount {
    std::string trigger;
    std::int64_t count = 0;
    bool operator==(const TriggerCount&) const = default;
  };
  struct DayCount {
    WallClock::TimePoint date;  ///< the day's first instant
    std::int64_t count = 0;
    bool operator==(const DayCount&) const = default;
  };

  /// The clock must outlive the tracker.
  UsageTracker(const std::filesystem::path& storageFolder, const WallClock& clock,
               LocalCalendar calendar = LocalCalendar());

  /// Counts and logs one expansion. What cannot be saved is logged, and stays in memory.
  void recordUsage(const std::string& trigger);

  /// Writes what the disk has not, or no longer, once more.
  void saveWhatIsMissing();

  const UsageCounts& usageCounts() const { return usageCounts_; }
  /// Oldest first.
  const std::vector<UsageEvent>& usageEvents() const { return usageEvents_; }

  std::int64_t totalExpansions() const;
  /// Events since the start of the local day.
  std::int64_t todayCount() const;
  /// The `n` highest counts, highest first.
  std::vector<TriggerCount> topUsed(std::size_t n) const;
  /// The last seven local days, oldest first, today last.
  std::vector<DayCount> dailyCounts() const;

  /// Runs before each change of the counts or the events.
  [[nodiscard]] Subscription onWillChange(std::function<void()> callback);
  /// Runs once after each recording, with the trigger recorded.
  [[nodiscard]] Subscription onRecorded(std::function<void(const std::string& trigger)> callback);

 private:
  void loadUsageCounts();
  void loadUsageEvents();
  void saveUsageCounts();
  void saveUsageEvents();
  void count(const std::string& trigger);
  void append(UsageEvent event);
  void dropOldest();
  std::int64_t eventsBetween(double start, double end) const;

  const WallClock& clock_;
  LocalCalendar calendar_;
  DataFile countsFile_;
  DataFile eventsFile_;
  UsageCounts usageCounts_;
  std::vector<UsageEvent> usageEvents_;
  UsageEventsText eventsText_;
  Signal<> willChange_;
  Signal<const std::string&> recorded_;
};

}  // namespace tessarin
