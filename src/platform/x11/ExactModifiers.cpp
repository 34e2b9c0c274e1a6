#include "platform/x11/ExactModifiers.h"

#include <xcb/xtest.h>

#include "platform/x11/Handles.h"
#include "platform/x11/XkbProtocol.h"

namespace tessarin::x11 {

std::optional<KeyboardState> keyboardState(xcb_connection_t* connection) {
  const Owned<xcb_xkb_get_state_reply_t> reply(
      xcb_xkb_get_state_reply(connection, xcb_xkb_get_state(connection, XCB_XKB_ID_USE_CORE_KBD), nullptr));
  if (!reply) return std::nullopt;
  return KeyboardState{reply->mods,  reply->baseMods,  reply->latchedMods, reply->lockedMods,
                       reply->group, reply->baseGroup, reply->lockedGroup};
}

void ExactModifiers::fake(std::uint8_t type, std::uint8_t code) {
  xcb_test_fake_input(connection_, type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

void ExactModifiers::impose(const KeyboardLayout& layout, const TypedKey& wanted) {
  released_.clear();
  pressed_.clear();
  changedLocks_ = 0;
  groupChanged_ = false;
  latchesChanged_ = false;
  if (sessionKeysDown(connection_)[wanted.code]) fake(XCB_KEY_RELEASE, wanted.code);
  before_ = keyboardState(connection_).value_or(KeyboardState{});
  const auto unwanted = static_cast<std::uint8_t>(before_.modifiers & ~wanted.modifiers);
  if ((unwanted & before_.base) != 0) releaseHeld(layout, unwanted & before_.base);
  auto missing = static_cast<std::uint8_t>(wanted.modifiers & ~before_.modifiers);
  pressMissing(layout, missing & ~layout.bits().locks());
  for (const std::uint8_t code : pressed_) missing &= static_cast<std::uint8_t>(~layout.heldModifiers(code));
  setLocks(wanted, missing);
}

void ExactModifiers::releaseHeld(const KeyboardLayout& layout, std::uint8_t unwanted) {
  downBefore_ = keysDown(connection_);
  const KeySet down = sessionKeysDown(connection_);
  for (std::size_t code = 0; code < down.size(); ++code) {
    const auto key = static_cast<std::uint8_t>(code);
    if (!down[code] || (layout.heldModifiers(key) & unwanted) == 0) continue;
    fake(XCB_KEY_RELEASE, key);
    released_.push_back(key);
  }
}

void ExactModifiers::pressMissing(const KeyboardLayout& layout, std::uint8_t missing) {
  for (unsigned bit = 1; bit <= 0x80; bit <<= 1) {
    if ((missing & bit) == 0) continue;
    const auto key = layout.keyHolding(static_cast<std::uint8_t>(bit));
    if (!key) continue;
    fake(XCB_KEY_PRESS, *key);
    pressed_.push_back(*key);
  }
}

void ExactModifiers::setLocks(const TypedKey& wanted, std::uint8_t missing) {
  const auto tooMany = static_cast<std::uint8_t>(before_.locked & ~wanted.modifiers);
  changedLocks_ = missing | tooMany;
  groupChanged_ = wanted.group != before_.group;
  const auto latches = static_cast<std::uint8_t>(before_.latched & ~wanted.modifiers);
  latchesChanged_ = latches != 0;
  if (changedLocks_ == 0 && !groupChanged_ && !latchesChanged_) return;
  const int group = wanted.group - before_.baseGroup;
  xcb_xkb_latch_lock_state(connection_, XCB_XKB_ID_USE_CORE_KBD, changedLocks_, missing,
                           groupChanged_ ? 1 : 0, static_cast<std::uint8_t>(group), latches, 0, 0);
}

TypedKey ExactModifiers::withoutImposed(TypedKey key) const {
  const bool changed =
      !released_.empty() || !pressed_.empty() || changedLocks_ != 0 || groupChanged_ || latchesChanged_;
  return changed ? TypedKey{key.code, before_.modifiers, before_.group} : key;
}

void ExactModifiers::restore() {
  if (changedLocks_ != 0 || groupChanged_) {
    xcb_xkb_latch_lock_state(connection_, XCB_XKB_ID_USE_CORE_KBD, changedLocks_,
                             before_.locked & changedLocks_, groupChanged_ ? 1 : 0, before_.lockedGroup, 0, 0,
                             0);
  }
  for (const std::uint8_t code : pressed_) fake(XCB_KEY_RELEASE, code);
  if (!released_.empty()) pressAgain();
}

void ExactModifiers::pressAgain() {
  const KeysDown now = keysDown(connection_);
  for (const std::uint8_t code : released_) {
    if (downBefore_.synthetic[code] && !borrowed_[code]) {
      fake(XCB_KEY_PRESS, code);
    } else if (now.real[code]) {
      borrow(code);
    }
  }
  followReleases();
}

void ExactModifiers::borrow(std::uint8_t code) {
  if (borrowed_.none()) events_.watchReleases(true);
  borrowed_[code] = true;
  fake(XCB_KEY_PRESS, code);
}

void ExactModifiers::followReleases() {
  if (borrowed_.none()) return;
  const KeysDown now = keysDown(connection_);
  for (std::size_t code = 0; code < borrowed_.size(); ++code) {
    if (!borrowed_[code] || now.real[code]) continue;
    fake(XCB_KEY_RELEASE, static_cast<std::uint8_t>(code));
    borrowed_[code] = false;
  }
  if (borrowed_.none()) events_.watchReleases(false);
}

void ExactModifiers::returnAll() {
  for (std::size_t code = 0; code < borrowed_.size(); ++code) {
    if (borrowed_[code]) fake(XCB_KEY_RELEASE, static_cast<std::uint8_t>(code));
  }
  borrowed_.reset();
}

KeySet ExactModifiers::leftPressed() const {
  KeySet keys = borrowed_;
  for (const std::uint8_t code : pressed_) keys[code] = true;
  return keys;
}

}  // namespace tessarin::x11
