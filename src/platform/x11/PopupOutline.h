#pragma once

#include <xcb/xcb.h>

namespace tessarin::x11 {

/// Where our popup stood when an event came: it goes as soon as it is clicked, often before anybody could ask
/// the server what was under the pointer. For one thread, which hands over its events in their order.
class PopupOutline {
 public:
  explicit PopupOutline(xcb_connection_t* connection) : connection_(connection) {}

  /// From now on that window, a child of the root; XCB_WINDOW_NONE for none.
  void follow(xcb_window_t window);
  void handle(const xcb_generic_event_t& event);

  /// Whether the place, in pixels of the root, is on the popup, by all that has been handled.
  bool contains(int x, int y) const;

 private:
  void readState();

  xcb_connection_t* connection_;
  xcb_window_t window_ = XCB_WINDOW_NONE;
  bool isMapped_ = false;
  xcb_rectangle_t frame_{};
};

}  // namespace tessarin::x11
