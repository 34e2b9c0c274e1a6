#include "platform/x11/KeyGrabs.h"

#include <xcb/xinput.h>

#include <algorithm>
#include <utility>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

constexpr std::uint32_t anyModifier = XCB_INPUT_MODIFIER_MASK_ANY;

/// All sums of the bits in `mask`.
std::vector<std::uint8_t> subsets(std::uint8_t mask) {
  std::vector<std::uint8_t> result;
  for (unsigned bits = 0; bits <= 0xff; ++bits) {
    if ((bits & ~unsigned{mask}) == 0) result.push_back(static_cast<std::uint8_t>(bits));
  }
  return result;
}

}  // namespace

void KeyGrabs::setKeys(const KeyboardLayout& layout, const std::string& trigger) {
  holdNothing();
  typingKeys_ = layout.typingKeys();
  bits_ = layout.bits();
  trigger_.clear();
  for (const KeyCombination& combination : layout.combinations(trigger)) {
    trigger_[combination.code].push_back(combination.modifiers);
  }
  forgetOwners();
}

void KeyGrabs::grab(std::uint8_t code, const Modifiers& modifiers) {
  if (modifiers.empty()) return;
  const std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
  const auto cookie = xcb_input_xi_passive_grab_device(
      keyboard_.connection, XCB_CURRENT_TIME, keyboard_.root, XCB_NONE, code, keyboard_.device,
      static_cast<std::uint16_t>(modifiers.size()), 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
      XCB_INPUT_GRAB_MODE_22_SYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &mask,
      modifiers.data());
  asked_.emplace_back(code, cookie.sequence);
}

void KeyGrabs::ungrab(std::uint8_t code, const Modifiers& modifiers) {
  if (modifiers.empty()) return;
  xcb_input_xi_passive_ungrab_device(keyboard_.connection, keyboard_.root, code, keyboard_.device,
                                     static_cast<std::uint16_t>(modifiers.size()),
                                     XCB_INPUT_GRAB_TYPE_KEYCODE, modifiers.data());
}

// A combination that somebody else holds in the same way is refused; of a whole key that is worth knowing.
void KeyGrabs::waitForGrabs() {
  for (const auto& [code, sequence] : std::exchange(asked_, {})) {
    const Owned<xcb_input_xi_passive_grab_device_reply_t> reply(
        xcb_input_xi_passive_grab_device_reply(keyboard_.connection, {sequence}, nullptr));
    if (!reply || reply->num_modifiers != 0) refused_.insert(code);
  }
}

void KeyGrabs::holdNothing() {
  if (level_ == Level::everything) letGoOfEverything();
  if (level_ != Level::nothing) {
    for (const auto& [code, modifiers] : trigger_) ungrab(code, modifiers);
  }
  level_ = Level::nothing;
}

void KeyGrabs::holdTrigger() {
  if (level_ == Level::everything) letGoOfEverything();
  if (level_ == Level::nothing) {
    for (const auto& [code, modifiers] : trigger_) grab(code, modifiers);
    waitForGrabs();
  }
  level_ = Level::trigger;
}

void KeyGrabs::holdEverything(std::uint8_t locks) {
  if (level_ == Level::everything && locks_ == locks) return;
  locks_ = locks;
  if (level_ == Level::nothing) holdTrigger();
  if (level_ == Level::trigger) {
    owned_.refresh(typingKeys_, modifiersThatMatter(), locks);
    grabWholeKeys();
  }
  grabCombinations();
  level_ = Level::everything;
}

void KeyGrabs::grabWholeKeys() {
  partlyHeld_.clear();
  refused_.clear();
  for (const std::uint8_t code : typingKeys_) {
    if (trigger_.contains(code)) continue;
    if (owned_.shares(code)) {
      partlyHeld_.insert(code);
    } else {
      grab(code, {anyModifier});
    }
  }
  waitForGrabs();
  partlyHeld_.merge(refused_);
}

void KeyGrabs::grabCombinations() {
  const auto modifiers = modifiersThatMatter();
  const auto free = [&](std::uint8_t code, const Modifiers& except) {
    Modifiers result;
    for (const std::uint8_t bits : modifiers) {
      const std::uint32_t locked = bits | locks_;
      const bool isTaken = owned_.contains({code, bits}) || std::ranges::count(except, locked) != 0;
      if (!isTaken) result.push_back(locked);
    }
    return result;
  };
  for (const std::uint8_t code : partlyHeld_) grab(code, free(code, {}));
  for (const auto& [code, held] : trigger_) {
    const Modifiers rest = free(code, held);
    grab(code, rest);
    Modifiers& beside = besideTrigger_[code];
    beside.insert(beside.end(), rest.begin(), rest.end());
  }
  waitForGrabs();
}

// What types, and the chords. Chords with a level shift mean nothing to anybody.
std::vector<std::uint8_t> KeyGrabs::modifiersThatMatter() const {
  std::vector<std::uint8_t> result = subsets(ModifierBits::shift | bits_.levels);
  for (const std::uint8_t bits : subsets(bits_.chord() | ModifierBits::shift)) {
    if ((bits & bits_.chord()) != 0) result.push_back(bits);
  }
  return result;
}

void KeyGrabs::letGoOfEverything() {
  for (const std::uint8_t code : typingKeys_) {
    if (!trigger_.contains(code)) ungrab(code, {anyModifier});
  }
  for (const auto& [code, modifiers] : std::exchange(besideTrigger_, {})) ungrab(code, modifiers);
}

}  // namespace tessarin::x11
