#pragma once

#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/OwnedCombinations.h"
#include "platform/x11/SessionKeyboard.h"

namespace tessarin::x11 {

/// Which keys the server holds for us. A change takes effect in the order of the connection's requests, so
/// before an answer that is given after it. One thread.
class KeyGrabs {
 public:
  explicit KeyGrabs(const SessionKeyboard& keyboard)
      : keyboard_(keyboard), owned_(keyboard.connection, keyboard.root) {}

  /// Lets go of everything and learns the keys anew.
  void setKeys(const KeyboardLayout& layout, const std::string& trigger);
  /// Forgets which combinations other programs own.
  void forgetOwners() { owned_.forget(); }

  void holdNothing();
  /// The trigger's keys, with the modifiers that produce it, and nothing else.
  void holdTrigger();
  /// Every key that types. Of a key that another program owns a combination of, and of the trigger's keys,
  /// the combinations that matter under these locked modifiers, and none that has an owner.
  void holdEverything(std::uint8_t locks);

 private:
  enum class Level { nothing, trigger, everything };
  using Modifiers = std::vector<std::uint32_t>;

  void grab(std::uint8_t code, const Modifiers& modifiers);
  void ungrab(std::uint8_t code, const Modifiers& modifiers);
  void waitForGrabs();
  void grabWholeKeys();
  void grabCombinations();
  /// Locks left out.
  std::vector<std::uint8_t> modifiersThatMatter() const;
  void letGoOfEverything();

  SessionKeyboard keyboard_;
  OwnedCombinations owned_;
  std::vector<std::uint8_t> typingKeys_;
  ModifierBits bits_;
  std::map<std::uint8_t, Modifiers> trigger_;        ///< by key code
  std::map<std::uint8_t, Modifiers> besideTrigger_;  ///< of the trigger's keys, held while everything is
  std::set<std::uint8_t> partlyHeld_;                ///< keys held by combinations, the trigger's apart
  std::set<std::uint8_t> refused_;                   ///< keys that could not be held as a whole
  std::vector<std::pair<std::uint8_t, unsigned>> asked_;
  Level level_ = Level::nothing;
  std::uint8_t locks_ = 0;
};

}  // namespace tessarin::x11
