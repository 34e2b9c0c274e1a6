#include "ui/settings/ChartAxis.h"

#include <algorithm>

namespace tessarin::ui {

ChartAxis ChartAxis::reaching(std::int64_t highest, int maxIntervals) {
  const std::int64_t reached = std::max<std::int64_t>(highest, 1);
  for (std::int64_t power = 1;; power *= 10) {
    for (const std::int64_t step : {power, 2 * power, 5 * power}) {
      const std::int64_t intervals = (reached - 1) / step + 1;
      if (intervals <= maxIntervals) return {step, step * intervals};
    }
  }
}

}  // namespace tessarin::ui
