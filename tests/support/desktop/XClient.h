#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/Handles.h"

namespace tessarin::testing {

struct WindowOptions {
  bool isOverrideRedirect = false;
  bool skipsTaskBar = false;
};

/// Another program on the display: shows windows, looks at those of others, moves the pointer and presses its
/// buttons. All in native pixels of the root window; every operation has taken effect in the server when it
/// returns.
class XClient {
 public:
  explicit XClient(const std::string& display);

  /// A mapped window of our own.
  xcb_window_t openWindow(const Rect& frame, const std::string& windowClass = "client",
                          const WindowOptions& options = {});
  void rename(xcb_window_t window, const std::string& windowClass);
  void destroy(xcb_window_t window);
  void focus(xcb_window_t window);
  /// Asks the window manager for it, as a task bar does.
  void activate(xcb_window_t window);

  xcb_window_t focusedWindow() const;
  xcb_window_t activeWindow();
  /// The mapped window whose class contains "tessarin".
  std::optional<xcb_window_t> popup() const;
  Rect frameOf(xcb_window_t window) const;
  std::string titleOf(xcb_window_t window) const;
  bool isOverrideRedirect(xcb_window_t window) const;
  /// Whether this pixel of the window belongs to its shape.
  bool isInShape(xcb_window_t window, int x, int y) const;

  void movePointer(int x, int y);
  void press(std::uint8_t button);
  /// Hides the window with the press, before anybody else can ask the server anything.
  void pressAndHide(std::uint8_t button, xcb_window_t window);
  void click(int x, int y);
  /// Says that windows are composed here, as long as this client lives.
  void becomeCompositor();
  /// Likewise, that there is an old-style tray; it leaves the icons where they are.
  void becomeTray();
  void setDpi(int dpi);
  void setRootNumbers(const std::string& property, const std::vector<std::uint32_t>& numbers);

 private:
  void own(const std::string& selection);
  void set(xcb_window_t window, xcb_atom_t property, const std::string& text);
  void sync() const { focusedWindow(); }

  x11::Connection connection_;
  x11::Atoms atoms_;
  xcb_window_t root_ = XCB_NONE;
};

}  // namespace tessarin::testing
