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

unsigned KeyGrabs::grab(std::uint8_t code, const Modifiers& modifiers) {
  const std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
  const auto cookie = xcb_input_xi_passive_grab_device(
      keyboard_.connection, XCB_CURRENT_TIME, keyboard_.root, XCB_NONE, code, keyboard_.device,
      static_cast<std::uint16_t>(modifiers.size()), 1, XCB_INPUT_GRAB_TYPE_KEYCODE,
      XCB_INPUT_GRAB_MODE_22_SYNC, XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, &mask,
      modifiers.data());
  return cookie.sequence;
}

void KeyGrabs::ungrab(std::uint8_t code, const Modifiers& modifiers) {
  if (modifiers.empty()) return;
  xcb_input_xi_passive_ungrab_device(keyboard_.connection, keyboard_.root, code, keyboard_.device,
                                     static_cast<std::uint16_t>(modifiers.size()),
                                     XCB_INPUT_GRAB_TYPE_KEYCODE, modifiers.data());
}

// A combination that somebody else holds in the same way is refused, and stays with them.
void KeyGrabs::grabPart(std::uint8_t code, const Modifiers& modifiers) {
  if (!modifiers.empty()) xcb_discard_reply(keyboard_.connection, grab(code, modifiers));
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
    for (const auto& [code, modifiers] : trigger_) grabPart(code, modifiers);
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
  grabCombinations(typingModifiers());
  level_ = Level::everything;
  chordsPending_ = true;
}

void KeyGrabs::holdChords() {
  if (std::exchange(chordsPending_, false)) grabCombinations(chordModifiers());
}

void KeyGrabs::grabWholeKeys() {
  partlyHeld_.clear();
  std::vector<std::pair<std::uint8_t, unsigned>> asked;
  for (const std::uint8_t code : typingKeys_) {
    if (trigger_.contains(code)) continue;
    if (owned_.shares(code)) {
      partlyHeld_.insert(code);
    } else {
      asked.emplace_back(code, grab(code, {anyModifier}));
    }
  }
  for (const auto& [code, sequence] : asked) {
    const Owned<xcb_input_xi_passive_grab_device_reply_t> reply(
        xcb_input_xi_passive_grab_device_reply(keyboard_.connection, {sequence}, nullptr));
    if (!reply || reply->num_modifiers != 0) partlyHeld_.insert(code);
  }
}

void KeyGrabs::grabCombinations(const std::vector<std::uint8_t>& modifiers) {
  const auto free = [&](std::uint8_t code, const Modifiers& except) {
    Modifiers result;
    for (const std::uint8_t bits : modifiers) {
      const std::uint32_t locked = bits | locks_;
      const bool isTaken = owned_.contains({code, bits}) || std::ranges::count(except, locked) != 0;
      if (!isTaken) result.push_back(locked);
    }
    return result;
  };
  for (const std::uint8_t code : partlyHeld_) grabPart(code, free(code, {}));
  for (const auto& [code, held] : trigger_) {
    const Modifiers rest = free(code, held);
    grabPart(code, rest);
    Modifiers& beside = besideTrigger_[code];
    beside.insert(beside.end(), rest.begin(), rest.end());
  }
}

void KeyGrabs::letGoOfEverything() {
  for (const std::uint8_t code : typingKeys_) {
    if (!trigger_.contains(code)) ungrab(code, {anyModifier});
  }
  for (const auto& [code, modifiers] : std::exchange(besideTrigger_, {})) ungrab(code, modifiers);
  chordsPending_ = false;
}

std::vector<std::uint8_t> KeyGrabs::typingModifiers() const {
  return subsets(ModifierBits::shift | bits_.levels);
}

// Chords with a level shift mean nothing to anybody.
std::vector<std::uint8_t> KeyGrabs::chordModifiers() const {
  std::vector<std::uint8_t> result = subsets(bits_.chord() | ModifierBits::shift);
  std::erase_if(result, [this](std::uint8_t bits) { return (bits & bits_.chord()) == 0; });
  return result;
}

std::vector<std::uint8_t> KeyGrabs::modifiersThatMatter() const {
  std::vector<std::uint8_t> result = typingModifiers();
  const std::vector<std::uint8_t> chords = chordModifiers();
  result.insert(result.end(), chords.begin(), chords.end());
  return result;
}

}  // namespace tessarin::x11
