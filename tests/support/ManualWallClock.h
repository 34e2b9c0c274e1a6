#pragma once

#include "platform/WallClock.h"

namespace tessarin::testing {

/// A time of day that stands still until it is set.
class ManualWallClock final : public WallClock {
 public:
  explicit ManualWallClock(TimePoint start = utc(2026, 3, 14, 9, 30, 0)) : time(start) {}

  static TimePoint utc(int year, unsigned month, unsigned day, int hour = 0, int minute = 0, int second = 0) {
    using namespace std::chrono;
    return sys_days(
               year_month_day(std::chrono::year(year), std::chrono::month(month), std::chrono::day(day))) +
           hours(hour) + minutes(minute) + seconds(second);
  }

  TimePoint now() const override { return time; }

  TimePoint time;
};

}  // namespace tessarin::testing
