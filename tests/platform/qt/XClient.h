#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"

namespace tessarin::testing {

/// Another program on the display: looks at windows from outside, owns the focus, moves the pointer and
/// presses its buttons. Every operation has taken effect in the server when it returns.
class XClient {
 public:
  explicit XClient(const std::string& display);

  /// A mapped window of our own in native pixels; with `hasFocus`, answers once it has the keyboard focus.
  xcb_window_t openWindow(const Rect& frame, bool hasFocus);
  xcb_window_t focusedWindow() const;
  xcb_window_t activeWindow() const;
  /// The mapped window whose class contains "tessarin".
  std::optional<xcb_window_t> popup() const;
  /// In native pixels of the root window.
  Rect frameOf(xcb_window_t window) const;
  std::string titleOf(xcb_window_t window) const;
  bool isOverrideRedirect(xcb_window_t window) const;
  /// Whether this pixel of the window belongs to its shape.
  bool isInShape(xcb_window_t window, int x, int y) const;

  void movePointer(int x, int y);
  void click(int x, int y);
  void scrollDown(int x, int y);
  /// Says that windows are composed here, as long as this client lives.
  void becomeCompositor();
  void setDpi(int dpi);
  void setRootNumbers(const std::string& property, const std::vector<std::uint32_t>& numbers);

 private:
  struct Disconnect {
    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
  };
  xcb_atom_t atom(const std::string& name) const;
  void askForFocus(xcb_window_t window);
  void press(std::uint8_t button);
  void sync() const;

  std::unique_ptr<xcb_connection_t, Disconnect> connection_;
  xcb_window_t root_ = XCB_NONE;
};

}  // namespace tessarin::testing
