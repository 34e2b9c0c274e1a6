#pragma once

#include <unicode/timezone.h>

#include <memory>
#include <string>

#include "platform/WallClock.h"

namespace tessarin {

/// The zone of that name; for an empty name the machine's as it is set now, so that a journey is noticed
/// without a restart.
inline std::unique_ptr<icu::TimeZone> makeIcuTimeZone(const std::string& name) {
  return std::unique_ptr<icu::TimeZone>(name.empty() ? icu::TimeZone::detectHostTimeZone()
                                                     : icu::TimeZone::createTimeZone(name.c_str()));
}

/// Milliseconds since 1970.
inline UDate toIcuDate(WallClock::TimePoint time) {
  return std::chrono::duration<double, std::milli>(time.time_since_epoch()).count();
}

inline WallClock::TimePoint fromIcuDate(UDate date) {
  const std::chrono::duration<double, std::milli> sinceEpoch(date);
  return WallClock::TimePoint(std::chrono::duration_cast<WallClock::TimePoint::duration>(sinceEpoch));
}

}  // namespace tessarin
