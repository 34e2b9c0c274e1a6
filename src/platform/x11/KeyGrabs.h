#pragma once

#include <xcb/xcb.h>

#include <set>
#include <string>
#include <vector>

#include "platform/x11/KeyboardLayout.h"

namespace tessarin::x11 {

/// Which keys the server holds for us. A change takes effect in the order of the connection's requests, so
/// before an answer that is given after it. One thread.
class KeyGrabs {
 public:
  KeyGrabs(xcb_connection_t* connection, xcb_window_t root) : connection_(connection), root_(root) {}

  /// Lets go of everything and learns the keys anew.
  void setKeys(const KeyboardLayout& layout, const std::string& trigger);
  /// Forgets which keys other programs own combinations of.
  void forgetOwners();

  void holdNothing();
  /// The trigger's keys, with the modifiers that produce it, and nothing else.
  void holdTrigger();
  /// Every key that types. Where another program owns a combination, and for the trigger's keys, first the
  /// combinations that type under these locked modifiers; the chords follow with `holdChords`.
  void holdEverything(std::uint8_t locks);
  /// The rest of `holdEverything`, for after the key in hand has been answered.
  void holdChords();

 private:
  enum class Level { nothing, trigger, everything };

  void grab(const KeyCombination& combination);
  void ungrab(std::uint8_t code, std::uint16_t modifiers);
  void grabWholeKeys();
  void grabCombinations(const std::vector<std::uint8_t>& modifiers);
  std::vector<std::uint8_t> typingModifiers() const;
  std::vector<std::uint8_t> chordModifiers() const;
  void letGoOfEverything();

  xcb_connection_t* connection_;
  xcb_window_t root_;
  std::vector<std::uint8_t> typingKeys_;
  ModifierBits bits_;
  std::vector<KeyCombination> trigger_;
  std::set<std::uint8_t> triggerKeys_;
  std::set<std::uint8_t> sharedKeys_;       ///< another program owns a combination
  std::set<KeyCombination> besideTrigger_;  ///< of the trigger's keys, held while everything is
  Level level_ = Level::nothing;
  std::uint8_t locks_ = 0;
  bool chordsPending_ = false;
};

}  // namespace tessarin::x11
