#include "platform/x11/SyntheticKeys.h"

#include <xcb/xtest.h>

namespace tessarin::x11 {
namespace {

class ServerGrab {
 public:
  explicit ServerGrab(xcb_connection_t* connection) : connection_(connection) { xcb_grab_server(connection); }
  ~ServerGrab() {
    xcb_ungrab_server(connection_);
    xcb_flush(connection_);
  }
  ServerGrab(const ServerGrab&) = delete;
  ServerGrab& operator=(const ServerGrab&) = delete;

 private:
  xcb_connection_t* connection_;
};

/// Sequence numbers wrap around.
bool isBefore(std::uint32_t a, std::uint32_t b) {
  return static_cast<std::int32_t>(a - b) < 0;
}

}  // namespace

void SyntheticKeys::keepHeld(const TypedKey& key) {
  keep_(key);
  keyboard_.swallowHeldKey();
}

void SyntheticKeys::takeIn() {
  for (bool came = true; came;) {
    came = false;
    events_.sync();
    while (const auto press = events_.nextRead()) {
      came = true;
      if (whole_.isTaken()) {
        keep_(press->key);
      } else {
        keepHeld(press->key);
        whole_.noteKept();
      }
    }
  }
}

void SyntheticKeys::type(const KeyboardLayout& layout, const TypedKey& key) {
  const ServerGrab grab(keyboard_.connection);
  do {
    whole_.giveBack();
    takeIn();
  } while (whole_.isTaken());
  modifiers_.impose(layout, key);
  pressAndLetBy(key);
  modifiers_.restore();
}

void SyntheticKeys::typeChord(const KeyboardLayout& layout, xkb_keysym_t symbol, std::uint8_t modifiers) {
  const KeyboardState now = keyboardState(keyboard_.connection).value_or(KeyboardState{});
  const auto code = layout.keyFor(symbol, now.group);
  if (!code) return;
  const auto locks = static_cast<std::uint8_t>(now.locked & layout.bits().locks());
  type(layout, {*code, static_cast<std::uint8_t>(modifiers | locks), now.group});
}

void SyntheticKeys::letGoOf(const KeySet& keys) {
  if (keys.none()) return;
  const KeySet down = keys & keysDown(keyboard_.connection).synthetic;
  for (std::size_t code = 0; code < down.size(); ++code) {
    if (!down[code]) continue;
    xcb_test_fake_input(keyboard_.connection, XCB_KEY_RELEASE, static_cast<std::uint8_t>(code),
                        XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  }
}

void SyntheticKeys::typeCharacter(const KeyboardLayout& layout, const std::string& character) {
  const KeyboardState now = keyboardState(keyboard_.connection).value_or(KeyboardState{});
  if (const auto key = layout.keyTyping(character, now.group)) type(layout, *key);
}

// The server carries out our press at once, so its event bears our request's number, unless a key of the
// user's froze the keyboard just before: then ours waits behind it and is known by what it is. Two like keys
// that change places there leave the same text.
void SyntheticKeys::pressAndLetBy(const TypedKey& key) {
  const auto request =
      xcb_test_fake_input(keyboard_.connection, XCB_KEY_PRESS, key.code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  xcb_test_fake_input(keyboard_.connection, XCB_KEY_RELEASE, key.code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  bool passed = false;
  for (bool came = true; came;) {
    came = false;
    events_.sync();
    while (const auto press = events_.nextRead()) {
      came = true;
      const bool isOurs = !passed && !isBefore(press->sequence, request.sequence) &&
                          (press->sequence == request.sequence || press->key == key);
      if (isOurs) {
        keyboard_.replayHeldKey();
        passed = true;
      } else {
        keepHeld(modifiers_.withoutImposed(press->key));
      }
    }
  }
}

}  // namespace tessarin::x11
