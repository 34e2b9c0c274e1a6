#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/WallClock.h"

namespace tessarin {

/// Days as the user's calendar has them. A day lasts from its first instant to the next day's, however many
/// hours daylight saving makes of it, also where its first hour does not exist.
class LocalCalendar {
 public:
  using TimePoint = WallClock::TimePoint;

  /// A time zone by name ("Europe/Berlin"); empty follows the machine's, looked up afresh at each call.
  explicit LocalCalendar(std::string timeZone = {}) : timeZone_(std::move(timeZone)) {}

  /// The first instant of the day that holds `time`. Nothing when the calendar cannot tell.
  std::optional<TimePoint> startOfDay(TimePoint time) const { return startsOfDays(time, 0, 0).front(); }

  /// The same for each day from `first` to `last` days later; negative is earlier.
  std::vector<std::optional<TimePoint>> startsOfDays(TimePoint time, int first, int last) const;

  /// Local time as a part of a file name: "2026-11-22T10-15-00".
  std::string fileNameStamp(TimePoint time) const;

 private:
  std::string timeZone_;
};

}  // namespace tessarin
