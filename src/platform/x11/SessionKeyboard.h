#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>

namespace tessarin::x11 {

/// The keyboard that all the user's keyboards feed, and the two answers to a key of it that the server holds.
///
/// Keys are held by grabs of the input extension and not of the core protocol: when a key held by a core grab
/// is passed on, the server leaves the layout group out of its event, and many programs then write it in the
/// first layout.
struct SessionKeyboard {
  xcb_connection_t* connection = nullptr;
  xcb_window_t root = XCB_NONE;
  std::uint16_t device = 0;

  /// None when the server does not tell.
  static std::optional<SessionKeyboard> find(xcb_connection_t* connection, xcb_window_t root);

  /// The focused window gets the key.
  void replayHeldKey() const;
  /// Nobody gets the key.
  void swallowHeldKey() const;
};

}  // namespace tessarin::x11
