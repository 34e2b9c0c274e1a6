#pragma once

#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "platform/qt/QtConnection.h"

/// What the X server and the window manager say about the monitors. Native pixels from the root window's top
/// left corner, y downwards. Every call is a round trip.
namespace tessarin::ui::monitors {

struct Desktop {
  /// The primary monitor first. The whole root window when the server cannot tell monitors.
  std::vector<Rect> frames;
  /// The part of the root window that panels leave free, on the desktop in front; none when nobody says.
  std::optional<Rect> workArea;
  std::optional<xcb_window_t> activeWindow;
};

Desktop desktop(const QtConnection& x);
std::optional<Point> centreOf(const QtConnection& x, xcb_window_t window);
std::optional<Point> pointer(const QtConnection& x);

}  // namespace tessarin::ui::monitors
