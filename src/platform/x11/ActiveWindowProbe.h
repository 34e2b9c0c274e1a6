#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "platform/x11/Handles.h"

namespace tessarin::x11 {

/// Where the active window stands and whose it is, asked of the server at every call (a few round trips).
/// Main thread.
class ActiveWindowProbe {
 public:
  /// `display` as in DISPLAY; empty for that variable's value. Without a server there is never an active
  /// window.
  explicit ActiveWindowProbe(const std::string& display = {});

  /// What is seen of it, in pixels on the screen: a shadow that the application draws around its window, and
  /// a frame that the window manager draws, are left out.
  std::optional<Rect> frame() const;
  /// The process that it belongs to, as far as it says so.
  std::optional<std::uint32_t> process() const;
  /// Whether the process has windows, as far as these say so, and the active one is another process's.
  bool isInBackground(std::uint32_t process) const;

 private:
  std::vector<xcb_window_t> windows() const;

  std::optional<xcb_window_t> window() const;
  /// Widths at the left, right, top and bottom.
  std::array<double, 4> shadow(xcb_window_t window) const;

  Connection connection_;
  xcb_window_t root_ = XCB_NONE;
  xcb_atom_t activeWindow_ = XCB_NONE;
  xcb_atom_t clientList_ = XCB_NONE;
  xcb_atom_t frameExtents_ = XCB_NONE;
  xcb_atom_t process_ = XCB_NONE;
};

}  // namespace tessarin::x11
