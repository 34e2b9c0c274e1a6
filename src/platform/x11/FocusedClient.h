#pragma once

#include <xcb/xcb.h>

#include <cstdint>

namespace tessarin::x11 {

/// The program that made a window or another resource, as far as the server tells programs apart: the part of
/// the number that is the same for all that one connection makes.
std::uint32_t clientOf(xcb_connection_t* connection, std::uint32_t resource);

/// The program whose window has the keyboard focus, or the pointer where the focus follows it; 0 when nothing
/// has it. Two round trips at most.
std::uint32_t focusedClient(xcb_connection_t* connection, xcb_window_t root);

/// The child of the root that the pointer is in; XCB_WINDOW_NONE over the bare root. One round trip.
xcb_window_t topLevelUnderPointer(xcb_connection_t* connection, xcb_window_t root);

}  // namespace tessarin::x11
