#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "platform/x11/SessionKeyboard.h"
#include "platform/x11/TypedKey.h"

namespace tessarin::x11 {

/// A key press that the server holds until it is answered.
struct HeldPress {
  TypedKey key;
  std::uint32_t sequence = 0;  ///< number of the last of our requests that the server had carried out
};

/// The events of the tap's connection, sorted: held presses are handed out one by one, the rest is noted. One
/// thread.
class ServerEvents {
 public:
  /// Announces XKB and asks for the events that tell of another mapping.
  explicit ServerEvents(const SessionKeyboard& keyboard);

  /// The next held press that has come, without waiting.
  std::optional<HeldPress> next() { return pick(&xcb_poll_for_event); }
  /// The same, when the socket has been read already.
  std::optional<HeldPress> nextRead() { return pick(&xcb_poll_for_queued_event); }
  /// Returns when the server has carried out all requests made so far; what it sent is read.
  void sync();

  /// Whether it happened since the last call.
  bool takeLayoutChange() { return std::exchange(layoutChanged_, false); }
  /// Of a window whose focus events the connection is sent. What the focus does because a key is held does
  /// not count.
  bool takeFocusLoss() { return std::exchange(focusLost_, false); }
  std::vector<std::uint8_t> takeReleases() { return std::exchange(releases_, {}); }
  /// Whether releases are reported, by `takeReleases`, whichever program they go to.
  void watchReleases(bool watched);

 private:
  std::optional<HeldPress> heldPress(const xcb_generic_event_t& event) const;
  std::optional<HeldPress> pick(xcb_generic_event_t* (*poll)(xcb_connection_t*));
  void note(const xcb_generic_event_t& event);
  void selectXkbEvents();

  SessionKeyboard keyboard_;
  std::uint8_t xkbEvent_ = 0;
  std::uint8_t inputOpcode_ = 0;
  bool layoutChanged_ = false;
  bool focusLost_ = false;
  std::vector<std::uint8_t> releases_;
};

}  // namespace tessarin::x11
