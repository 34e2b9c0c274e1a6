#pragma once

#include <cstdint>

namespace tessarin::ui {

/// The axis of a chart that shows counts: it begins at 0 and has a mark at every multiple of `step` up to
/// `top`.
struct ChartAxis {
  std::int64_t step = 1;
  std::int64_t top = 1;
  bool operator==(const ChartAxis&) const = default;

  /// Steps of 1, 2 or 5 times a power of ten, as small as `maxIntervals` (at least 1) of them allow, reaching
  /// `highest`. There is always a first step, even where nothing is counted.
  static ChartAxis reaching(std::int64_t highest, int maxIntervals);
};

}  // namespace tessarin::ui
