#pragma once

#include <string>

#include "platform/WallClock.h"

namespace tessarin {

/// One recorded expansion.
struct UsageEvent {
  std::string trigger;
  double timestamp = 0;  ///< seconds, with fraction, since 2001-01-01 00:00:00 UTC

  bool operator==(const UsageEvent&) const = default;
};

/// The moment in the unit of `UsageEvent::timestamp`.
double secondsSinceReferenceDate(WallClock::TimePoint time);

}  // namespace tessarin
