#pragma once

#include <xcb/xcb.h>

#include <bitset>

namespace tessarin::x11 {

/// Key codes that are down.
using KeySet = std::bitset<256>;

/// What is down on the keyboards that feed the session's keyboard.
struct KeysDown {
  KeySet real;       ///< on keyboards of the user
  KeySet synthetic;  ///< on the server's device for synthetic keys
};

/// Asks the server. Nothing is down on a device that does not answer.
KeysDown keysDown(xcb_connection_t* connection);
/// What the session's keyboard counts as down, all devices taken together.
KeySet sessionKeysDown(xcb_connection_t* connection);

}  // namespace tessarin::x11
