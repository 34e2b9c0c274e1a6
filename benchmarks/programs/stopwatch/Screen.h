#pragma once

#include <xcb/damage.h>

#include <cstdint>
#include <map>
#include <string>
#include <vector>

#include "platform/x11/Handles.h"

namespace tessarin::stopwatch {

/// The X server's side: presses keys, tells when watched parts of windows look otherwise than before, and
/// when keys arrive in a plain window of its own.
class Screen {
 public:
  Screen();
  bool isConnected() const { return xcb_connection_has_error(connection_.get()) == 0; }
  int fd() const { return xcb_get_file_descriptor(connection_.get()); }

  /// "+50" presses key code 50, "-50" lets it go; all at one go.
  void press(const std::vector<std::string>& moves);
  /// Looks at this part of the window whenever something is drawn in the window.
  void watch(const std::string& name, xcb_window_t window, xcb_rectangle_t part);
  void forget(const std::string& name);
  /// Tells what the part looks like now.
  void tell(const std::string& name);
  void openKeyWindow();
  void closeKeyWindow();
  void takeIn();

 private:
  struct Part {
    xcb_window_t window;
    xcb_rectangle_t place;
    xcb_damage_damage_t damage;
    std::uint64_t looks;
  };

  /// A number for the picture; 0 where there is none.
  std::uint64_t look(const Part& part) const;
  void onDrawn(const xcb_damage_notify_event_t& drawn);

  x11::Connection connection_{xcb_connect(nullptr, nullptr)};
  xcb_window_t root_ = XCB_NONE;
  xcb_window_t keyWindow_ = XCB_NONE;
  std::uint8_t damageEvent_ = 0;
  std::map<std::string, Part> parts_;
};

}  // namespace tessarin::stopwatch
