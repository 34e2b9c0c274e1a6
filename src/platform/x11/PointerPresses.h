#pragma once

#include <xcb/xcb.h>

#include <cstdint>

namespace tessarin::x11 {

/// Hears of every press of a pointer button, wherever the pointer is and whoever has grabbed it, without
/// keeping it from anybody.
class PointerPresses {
 public:
  /// Selects the events; without a server that knows them, nothing is ever heard.
  PointerPresses(xcb_connection_t* connection, xcb_window_t root);

  /// Whether the event is the press of a button; turning the wheel is none.
  bool isPress(const xcb_generic_event_t& event) const;

 private:
  std::uint8_t opcode_ = 0;  // 0: the extension is missing
};

}  // namespace tessarin::x11
