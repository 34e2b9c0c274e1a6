#pragma once

#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "platform/qt/QtConnection.h"

/// What the X server and the window manager say about the monitors. Native pixels from the root window's top
/// left corner, y downwards. Every call is a round trip.
namespace tessarin::ui::monitors {

/// The primary monitor first. The whole root window when the server cannot tell monitors.
std::vector<Rect> frames(const QtConnection& x);
/// The part of the root window that panels leave free, on the desktop in front; none when nobody says.
std::optional<Rect> workArea(const QtConnection& x);
/// The middle of the active window.
std::optional<Point> activeWindowCentre(const QtConnection& x);
std::optional<Point> pointer(const QtConnection& x);

}  // namespace tessarin::ui::monitors
