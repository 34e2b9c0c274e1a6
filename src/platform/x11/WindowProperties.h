#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <string>
#include <vector>

#include "platform/freedesktop/ApplicationMatcher.h"

namespace tessarin::x11 {

class Atoms;

/// Reads what programs and the window manager have written on windows. On the thread of the connection. A
/// window that has gone has nothing on it.
class WindowProperties {
 public:
  WindowProperties(xcb_connection_t* connection, Atoms& atoms, xcb_window_t root);

  /// One round trip.
  freedesktop::WindowIdentity identity(xcb_window_t window);
  /// Whether a task bar shows the window.
  bool belongsInTaskBar(xcb_window_t window);
  /// The windows that the window manager manages, oldest first.
  std::vector<xcb_window_t> managedWindows();
  /// The window in use as the window manager says; none when nothing is.
  xcb_window_t activeWindow();
  /// The window by which a window manager shows that it is there; none when there is no window manager.
  xcb_window_t managerWindow();
  /// The window itself or the nearest one around it that says what it belongs to, else the outermost.
  xcb_window_t identifiedWindow(xcb_window_t window);

 private:
  std::vector<std::uint32_t> units(xcb_window_t window, const char* property);
  xcb_window_t windowIn(xcb_window_t window, const char* property);

  xcb_connection_t* connection_;
  Atoms& atoms_;
  xcb_window_t root_;
};

}  // namespace tessarin::x11
