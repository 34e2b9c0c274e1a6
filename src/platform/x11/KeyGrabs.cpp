#include "platform/x11/KeyGrabs.h"

#include <algorithm>
#include <utility>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

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
  trigger_ = layout.combinations(trigger);
  triggerKeys_.clear();
  for (const KeyCombination& combination : trigger_) triggerKeys_.insert(combination.code);
  forgetOwners();
}

void KeyGrabs::forgetOwners() {
  sharedKeys_.clear();
}

void KeyGrabs::grab(const KeyCombination& combination) {
  xcb_grab_key(connection_, 0, root_, combination.modifiers, combination.code, XCB_GRAB_MODE_ASYNC,
               XCB_GRAB_MODE_SYNC);
}

void KeyGrabs::ungrab(std::uint8_t code, std::uint16_t modifiers) {
  xcb_ungrab_key(connection_, code, root_, modifiers);
}

void KeyGrabs::holdNothing() {
  if (level_ == Level::everything) letGoOfEverything();
  if (level_ != Level::nothing) {
    for (const KeyCombination& key : trigger_) ungrab(key.code, key.modifiers);
  }
  level_ = Level::nothing;
}

void KeyGrabs::holdTrigger() {
  if (level_ == Level::everything) letGoOfEverything();
  if (level_ == Level::nothing) std::ranges::for_each(trigger_, [this](const auto& key) { grab(key); });
  level_ = Level::trigger;
}

void KeyGrabs::holdEverything(std::uint8_t locks) {
  if (level_ == Level::everything && locks_ == locks) return;
  if (level_ == Level::nothing) holdTrigger();
  locks_ = locks;
  if (level_ == Level::trigger) grabWholeKeys();
  grabCombinations(typingModifiers());
  level_ = Level::everything;
  chordsPending_ = true;
}

void KeyGrabs::holdChords() {
  if (std::exchange(chordsPending_, false)) grabCombinations(chordModifiers());
}

void KeyGrabs::grabWholeKeys() {
  std::vector<std::pair<std::uint8_t, xcb_void_cookie_t>> asked;
  for (const std::uint8_t code : typingKeys_) {
    if (triggerKeys_.contains(code) || sharedKeys_.contains(code)) continue;
    asked.emplace_back(code, xcb_grab_key_checked(connection_, 0, root_, XCB_MOD_MASK_ANY, code,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC));
  }
  // The last answer first: one round trip then brings all of them.
  std::ranges::reverse(asked);
  for (const auto& [code, cookie] : asked) {
    if (const Owned<xcb_generic_error_t> error{xcb_request_check(connection_, cookie)}) {
      sharedKeys_.insert(code);
    }
  }
}

// A combination that another program owns is refused; that error is of no interest.
void KeyGrabs::grabCombinations(const std::vector<std::uint8_t>& modifiers) {
  std::set<std::uint8_t> codes = sharedKeys_;
  codes.insert(triggerKeys_.begin(), triggerKeys_.end());
  for (const std::uint8_t code : codes) {
    for (const std::uint8_t bits : modifiers) {
      const KeyCombination combination{code, static_cast<std::uint8_t>(bits | locks_)};
      if (std::ranges::binary_search(trigger_, combination)) continue;
      grab(combination);
      if (triggerKeys_.contains(code)) besideTrigger_.insert(combination);
    }
  }
}

std::vector<std::uint8_t> KeyGrabs::typingModifiers() const {
  return subsets(ModifierBits::shift | bits_.levels);
}

std::vector<std::uint8_t> KeyGrabs::chordModifiers() const {
  const std::uint8_t chord = bits_.chord();
  std::vector<std::uint8_t> result = subsets(chord | ModifierBits::shift);
  std::erase_if(result, [chord](std::uint8_t bits) { return (bits & chord) == 0; });
  return result;
}

void KeyGrabs::letGoOfEverything() {
  for (const std::uint8_t code : typingKeys_) {
    if (!triggerKeys_.contains(code)) ungrab(code, XCB_MOD_MASK_ANY);
  }
  for (const KeyCombination& key : besideTrigger_) ungrab(key.code, key.modifiers);
  besideTrigger_.clear();
  chordsPending_ = false;
}

}  // namespace tessarin::x11
