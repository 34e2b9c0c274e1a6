#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "platform/x11/Handles.h"

namespace tessarin::x11 {

/// Where the active window stands and whose it is, asked of the server at every call. That is one round trip
/// as long as it is the window that it was at the last call. Main thread.
class ActiveWindowProbe {
 public:
  /// `display` as in DISPLAY; empty for that variable's value. Without a server there is never an active
  /// window.
  explicit ActiveWindowProbe(const std::string& display = {});

  /// What is seen of it, in pixels on the screen: a shadow that the application draws around its window, and
  /// a frame that the window manager draws, are left out.
  std::optional<Rect> frame();
  /// The process that it belongs to, as far as it says so.
  std::optional<std::uint32_t> process();
  /// Whether the process has windows, as far as these say so, and the active one is another process's.
  bool isInBackground(std::uint32_t process);

 private:
  /// What `ask(window)` has asked of the active window: a tuple of cookies, none without an active window.
  template <class Ask>
  auto askActive(Ask ask) -> std::optional<decltype(ask(xcb_window_t{}))>;
  xcb_get_property_cookie_t askFor(xcb_window_t window, xcb_atom_t property, std::uint32_t count) const;
  Owned<xcb_get_property_reply_t> numbers(xcb_get_property_cookie_t asked, std::uint32_t count) const;
  std::optional<std::uint32_t> number(xcb_get_property_cookie_t asked) const;
  std::vector<xcb_window_t> windows() const;

  Connection connection_;
  xcb_window_t root_ = XCB_NONE;
  xcb_atom_t activeWindow_ = XCB_NONE;
  xcb_atom_t clientList_ = XCB_NONE;
  xcb_atom_t frameExtents_ = XCB_NONE;
  xcb_atom_t process_ = XCB_NONE;
  xcb_window_t last_ = XCB_NONE;  ///< the active window, as it was found last
};

}  // namespace tessarin::x11
