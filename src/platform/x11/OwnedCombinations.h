#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <set>
#include <vector>

#include "platform/x11/TypedKey.h"

namespace tessarin::x11 {

/// Which combinations of keys and modifiers other programs have reserved with the core protocol, as most
/// window managers do. Our grabs would take these away from them, and the server does not complain of that.
/// One thread.
class OwnedCombinations {
 public:
  /// Shortcuts may be changed at any time; how long an answer is believed.
  static constexpr std::chrono::seconds freshTime{60};

  OwnedCombinations(xcb_connection_t* connection, xcb_window_t root) : connection_(connection), root_(root) {}

  void forget() { asked_ = {}; }
  /// Asks the server, unless that was done lately. To be called while a key is held, or the probing itself
  /// may hold one for a moment. `modifiers`: those that matter for a key of which another program owns
  /// something, to be tried together with `locks`.
  void refresh(const std::vector<std::uint8_t>& keys, const std::vector<std::uint8_t>& modifiers,
               std::uint8_t locks);

  /// Whether any combination of the key belongs to another program.
  bool shares(std::uint8_t code) const { return sharedKeys_.contains(code); }
  /// Lock modifiers left out.
  bool contains(const KeyCombination& combination) const { return owned_.contains(combination); }

 private:
  using Clock = std::chrono::steady_clock;
  struct Probe {
    std::uint8_t code;
    std::uint16_t modifiers;
    xcb_void_cookie_t cookie;
  };

  std::vector<Probe> refused(std::vector<Probe> probes);
  Probe probe(std::uint8_t code, std::uint16_t modifiers);

  xcb_connection_t* connection_;
  xcb_window_t root_;
  std::set<std::uint8_t> sharedKeys_;
  std::set<KeyCombination> owned_;
  Clock::time_point asked_{};
};

}  // namespace tessarin::x11
