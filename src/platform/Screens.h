#pragma once

#include <optional>
#include <vector>

#include "base/Geometry.h"

namespace tessarin {

struct Screen {
  Rect frame;         ///< screen coordinates, points
  Rect visibleFrame;  ///< the frame less panels and docks
  bool operator==(const Screen&) const = default;
};

/// The monitors, as the system has last told of them, and the pointer. Main thread.
class Screens {
 public:
  virtual ~Screens() = default;

  /// The primary screen first; empty when there is none.
  virtual std::vector<Screen> screens() = 0;
  /// The screen that has the keyboard focus, as far as that is known, else the first.
  virtual std::optional<Screen> mainScreen() = 0;
  /// Screen coordinates, points.
  virtual Point mouseLocation() = 0;
};

}  // namespace tessarin
