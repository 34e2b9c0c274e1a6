#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>

namespace tessarin::x11 {

struct Free {
  void operator()(void* pointer) const noexcept { std::free(pointer); }
};
/// A reply, event or error that libxcb allocated.
template <class T>
using Owned = std::unique_ptr<T, Free>;

struct Disconnect {
  void operator()(xcb_connection_t* connection) const noexcept { xcb_disconnect(connection); }
};
/// A connection to the X server. xcb_connect never answers null: ask xcb_connection_has_error.
using Connection = std::unique_ptr<xcb_connection_t, Disconnect>;

}  // namespace tessarin::x11
