#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <string>
#include <utility>

#include "platform/x11/ExactModifiers.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/ServerEvents.h"
#include "platform/x11/SlaveKeyboards.h"
#include "platform/x11/WholeKeyboard.h"

namespace tessarin::x11 {

/// Types keys for the program, each with exactly the modifiers and the group asked for. One thread.
///
/// Our own presses come back through our grabs. They are told from the user's by their order: the server is
/// grabbed, everything that has come is taken in, and then the first press that comes is ours.
class SyntheticKeys {
 public:
  /// `keep` takes over a key of the user's that came in between; the application does not get it.
  using Keep = std::function<void(const TypedKey&)>;

  SyntheticKeys(const SessionKeyboard& keyboard, ServerEvents& events, WholeKeyboard& whole, Keep keep)
      : keyboard_(keyboard),
        events_(events),
        whole_(whole),
        keep_(std::move(keep)),
        modifiers_(keyboard.connection, events) {}

  /// Presses and releases the key. It has passed our own grabs when this returns. No key is held before the
  /// call. The whole keyboard is given back, if it was taken.
  void type(const KeyboardLayout& layout, const TypedKey& key);
  /// The same with these modifiers and the locks and the group in effect.
  void typeChord(const KeyboardLayout& layout, xkb_keysym_t symbol, std::uint8_t modifiers);
  /// The same with what types this character; nothing where no key does.
  void typeCharacter(const KeyboardLayout& layout, const std::string& character);
  /// Keeps everything that has come; of a great deal, it takes the whole keyboard.
  void takeIn();
  /// To be called when keys were let go of anywhere.
  void followReleases() { modifiers_.followReleases(); }
  /// Lets go of every modifier that is still pressed for the user.
  void returnModifiers() { modifiers_.returnAll(); }
  /// What may have been left pressed where the connection to the server was lost, for `letGoOf` on another.
  KeySet leftPressed() const { return modifiers_.leftPressed(); }
  void letGoOf(const KeySet& keys);

 private:
  void pressAndLetBy(const TypedKey& key);
  void keepHeld(const TypedKey& key);

  SessionKeyboard keyboard_;
  ServerEvents& events_;
  WholeKeyboard& whole_;
  Keep keep_;
  ExactModifiers modifiers_;
};

}  // namespace tessarin::x11
