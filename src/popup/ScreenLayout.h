#pragma once

#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "platform/Screens.h"

namespace tessarin {

/// The monitors at one moment.
struct ScreenLayout {
  std::vector<Screen> screens;       ///< the primary screen first
  std::optional<Screen> mainScreen;  ///< where to turn to when a point is on none of them

  static ScreenLayout read(Screens& screens);

  /// The first screen whose whole frame contains the point (screen coordinates), else the main screen.
  std::optional<Screen> screenContaining(Point point) const;
  /// From accessibility to screen coordinates and back; unchanged when there is no screen.
  Rect toScreenCoordinates(const Rect& rect) const;
  /// Height of the primary screen in points; 0 when there is none.
  double primaryHeight() const;
};

}  // namespace tessarin
