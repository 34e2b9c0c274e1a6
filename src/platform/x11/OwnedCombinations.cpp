#include "platform/x11/OwnedCombinations.h"

#include <algorithm>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {

OwnedCombinations::Probe OwnedCombinations::probe(std::uint8_t code, std::uint16_t modifiers) {
  return {
      code, modifiers,
      xcb_grab_key_checked(connection_, 0, root_, modifiers, code, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_SYNC)};
}

// A grab that is refused belongs to somebody else; the others are let go of at once.
std::vector<OwnedCombinations::Probe> OwnedCombinations::refused(std::vector<Probe> probes) {
  for (const Probe& probe : probes) xcb_ungrab_key(connection_, probe.code, root_, probe.modifiers);
  // The last answer first: one round trip then brings all of them.
  std::ranges::reverse(probes);
  std::erase_if(probes, [this](const Probe& probe) {
    const Owned<xcb_generic_error_t> error(xcb_request_check(connection_, probe.cookie));
    return error == nullptr;
  });
  return probes;
}

void OwnedCombinations::refresh(const std::vector<std::uint8_t>& keys,
                                const std::vector<std::uint8_t>& modifiers, std::uint8_t locks) {
  if (asked_ != Clock::time_point() && Clock::now() - asked_ < freshTime) return;
  asked_ = Clock::now();
  sharedKeys_.clear();
  owned_.clear();
  std::vector<Probe> probes;
  probes.reserve(keys.size());
  for (const std::uint8_t code : keys) probes.push_back(probe(code, XCB_MOD_MASK_ANY));
  for (const Probe& shared : refused(std::move(probes))) sharedKeys_.insert(shared.code);
  probes.clear();
  for (const std::uint8_t code : sharedKeys_) {
    for (const std::uint8_t bits : modifiers) probes.push_back(probe(code, bits | locks));
  }
  for (const Probe& taken : refused(std::move(probes))) {
    owned_.insert({taken.code, static_cast<std::uint8_t>(taken.modifiers & ~locks)});
  }
}

}  // namespace tessarin::x11
