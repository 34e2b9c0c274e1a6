#include "platform/x11/KeyGrabs.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <utility>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

constexpr std::uint32_t anyModifier = XCB_INPUT_MODIFIER_MASK_ANY;

std::vector<std::uint32_t> allModifiersBut(const std::vector<std::uint32_t>& except) {
  std::vector<std::uint32_t> result;
  for (std::uint32_t bits = 0; bits <= 0xff; ++bits) {
    if (std::ranges::count(except, bits) == 0) result.push_back(bits);
  }
  return result;
}

}  // namespace

void KeyGrabs::setKeys(const KeyboardLayout& layout, const std::string& trigger) {
  holdNothing();
  trigger_.clear();
  for (const KeyCombination& combination : layout.combinations(trigger)) {
    trigger_[combination.code].push_back(combination.modifiers);
  }
  everything_.clear();
  for (const std::uint8_t code : layout.typingKeys()) everything_[code] = {anyModifier};
  // Passed on from the root, the trigger would be held a second time.
  for (const auto& [code, modifiers] : trigger_) everything_[code] = allModifiersBut(modifiers);
}

// A combination that somebody else holds on the same window is refused, and stays with them.
void KeyGrabs::grab(xcb_window_t window, std::uint8_t code, const Modifiers& modifiers) {
  const std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
  const auto cookie = xcb_input_xi_passive_grab_device(
      keyboard_.connection, XCB_CURRENT_TIME, window, XCB_NONE, code, keyboard_.device,
      static_cast<std::uint16_t>(modifiers.size()), 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
      XCB_INPUT_GRAB_MODE_22_SYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &mask,
      modifiers.data());
  xcb_discard_reply(keyboard_.connection, cookie.sequence);
}

void KeyGrabs::ungrab(xcb_window_t window, std::uint8_t code, const Modifiers& modifiers) {
  xcb_input_xi_passive_ungrab_device(keyboard_.connection, window, code, keyboard_.device,
                                     static_cast<std::uint16_t>(modifiers.size()),
                                     XCB_INPUT_GRAB_TYPE_KEYCODE, modifiers.data());
}

void KeyGrabs::holdNothing() {
  if (level_ == Level::everything) letGoOfEverything();
  if (level_ != Level::nothing) {
    for (const auto& [code, modifiers] : trigger_) ungrab(keyboard_.root, code, modifiers);
  }
  level_ = Level::nothing;
}

void KeyGrabs::holdTrigger() {
  if (level_ == Level::everything) letGoOfEverything();
  if (level_ == Level::nothing) {
    for (const auto& [code, modifiers] : trigger_) grab(keyboard_.root, code, modifiers);
  }
  level_ = Level::trigger;
}

void KeyGrabs::holdEverything() {
  if (level_ == Level::everything) return;
  holdTrigger();
  settleOnFocus();
  grabAtFocus();
  level_ = Level::everything;
}

void KeyGrabs::holdTriggerAtFocus() {
  if (level_ != Level::everything || isTriggerAtFocus_ || window_ == keyboard_.root) return;
  moveTrigger(keyboard_.root, window_);
  isTriggerAtFocus_ = true;
}

void KeyGrabs::holdTriggerAtRoot() {
  if (std::exchange(isTriggerAtFocus_, false)) moveTrigger(window_, keyboard_.root);
}

// Held in both places for a moment rather than in none.
void KeyGrabs::moveTrigger(xcb_window_t from, xcb_window_t to) {
  for (const auto& [code, modifiers] : trigger_) grab(to, code, modifiers);
  for (const auto& [code, modifiers] : trigger_) ungrab(from, code, modifiers);
}

bool KeyGrabs::followFocus() {
  if (level_ != Level::everything || focusedWindow() == window_) return false;
  letGoOfEverything();
  settleOnFocus();
  grabAtFocus();
  return true;
}

// Where nothing has the focus, or whatever the pointer is over, the keys are held on the root.
xcb_window_t KeyGrabs::focusedWindow() {
  const Owned<xcb_input_xi_get_focus_reply_t> reply(xcb_input_xi_get_focus_reply(
      keyboard_.connection, xcb_input_xi_get_focus(keyboard_.connection, keyboard_.device), nullptr));
  return reply && reply->focus > XCB_INPUT_FOCUS_POINTER_ROOT ? reply->focus : keyboard_.root;
}

// What moves the focus before its window is watched tells us nothing.
void KeyGrabs::settleOnFocus() {
  for (window_ = focusedWindow();; window_ = focusedWindow()) {
    const xcb_window_t watched = window_;
    watchFocus(true);
    if (focusedWindow() == watched) return;
    watchFocus(false);
  }
}

void KeyGrabs::grabAtFocus() {
  watch_.keysHeldAt(window_);
  for (const auto& [code, modifiers] : everything_) grab(window_, code, modifiers);
}

// The window may be gone by now; the server's complaints about that are nobody's business.
void KeyGrabs::letGoOfEverything() {
  holdTriggerAtRoot();
  for (const auto& [code, modifiers] : everything_) ungrab(window_, code, modifiers);
  watchFocus(false);
  watch_.keysHeldAt(XCB_NONE);
}

void KeyGrabs::watchFocus(bool watched) {
  const std::uint32_t mask = watched ? std::uint32_t{XCB_EVENT_MASK_FOCUS_CHANGE} : 0U;
  xcb_change_window_attributes(keyboard_.connection, window_, XCB_CW_EVENT_MASK, &mask);
}

}  // namespace tessarin::x11
