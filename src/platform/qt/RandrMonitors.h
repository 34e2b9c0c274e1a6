#pragma once

#include <optional>
#include <vector>

#include "base/Geometry.h"
#include "platform/qt/QtConnection.h"

/// What the X server, the window manager and the compositor say about the desktop. Native pixels from the
/// root window's top left corner, y downwards. Every call is a round trip.
namespace tessarin::ui::monitors {

struct Desktop {
  /// The primary monitor first. The whole root window when the server cannot tell monitors.
  std::vector<Rect> frames;
  /// The part of the root window that panels leave free, on the desktop in front; none when nobody says.
  std::optional<Rect> workArea;
  std::optional<xcb_window_t> activeWindow;
  /// Whether a compositor runs, so that what is transparent is seen so.
  bool isComposited = false;
};

/// Where the answers to `desktop` come from.
struct Sources {
  xcb_atom_t workArea;
  xcb_atom_t currentDesktop;
  xcb_atom_t activeWindow;
  xcb_atom_t compositor;  ///< a selection; the others are properties of the root window
};
Sources sources(const QtConnection& x);

Desktop desktop(const QtConnection& x, const Sources& sources);
std::optional<Point> centreOf(const QtConnection& x, xcb_window_t window);
std::optional<Point> pointer(const QtConnection& x);

}  // namespace tessarin::ui::monitors
