#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/ServerEvents.h"
#include "platform/x11/SlaveKeyboards.h"

namespace tessarin::x11 {

/// What the session's keyboard has in effect.
struct KeyboardState {
  std::uint8_t modifiers = 0;  ///< all together
  std::uint8_t base = 0;       ///< of the keys that are down
  std::uint8_t latched = 0;
  std::uint8_t locked = 0;
  std::uint8_t group = 0;  ///< all together
  std::int16_t baseGroup = 0;
  std::uint8_t lockedGroup = 0;
};
std::optional<KeyboardState> keyboardState(xcb_connection_t* connection);

/// Puts modifiers and group into effect for one synthetic press, whatever the user is holding, and then puts
/// back what the user still holds. Used while the server is grabbed. One thread.
class ExactModifiers {
 public:
  ExactModifiers(xcb_connection_t* connection, ServerEvents& events)
      : connection_(connection), events_(events) {}

  /// `wanted.code` is let go of as well, if it is down.
  void impose(const KeyboardLayout& layout, const TypedKey& wanted);
  /// The key as it would have come without `impose`: a key of the user's that slips in has our modifiers.
  TypedKey withoutImposed(TypedKey key) const;
  /// Undoes it. A modifier that the user has let go of in the meantime stays up.
  void restore();
  /// Lets go of the modifiers that were pressed for the user when the user's own key comes up.
  void followReleases();
  /// Lets go of all of them.
  void returnAll();
  /// What may have been left pressed where the connection to the server was lost.
  KeySet leftPressed() const;

 private:
  void releaseHeld(const KeyboardLayout& layout, std::uint8_t unwanted);
  void pressMissing(const KeyboardLayout& layout, std::uint8_t missing);
  void setLocks(const TypedKey& wanted, std::uint8_t missing);
  void pressAgain();
  void borrow(std::uint8_t code);
  void fake(std::uint8_t type, std::uint8_t code);

  xcb_connection_t* connection_;
  ServerEvents& events_;
  KeyboardState before_;
  KeysDown downBefore_;
  std::vector<std::uint8_t> released_;
  std::vector<std::uint8_t> pressed_;
  std::uint8_t changedLocks_ = 0;
  bool groupChanged_ = false;
  bool latchesChanged_ = false;
  KeySet borrowed_;  ///< pressed by us because the user holds them on a keyboard of their own
};

}  // namespace tessarin::x11
