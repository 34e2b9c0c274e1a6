#include "model/UsageEvent.h"

namespace tessarin {

double secondsSinceReferenceDate(WallClock::TimePoint time) {
  using namespace std::chrono;
  constexpr sys_days reference = year{2001} / January / 1;
  // Subtracted as integers first: a double has more digits left for the fraction of the smaller number.
  return duration<double>(time - reference).count();
}

}  // namespace tessarin
