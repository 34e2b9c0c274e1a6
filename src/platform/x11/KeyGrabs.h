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
  /// the combinations that type under these locked modifiers; the chords follow with `holdChords`. Nothing
  /// that has an owner.
  void holdEverything(std::uint8_t locks);
  /// The rest of `holdEverything`, for after the key in hand has been answered: nobody is that quick with a
  /// chord.
  void holdChords();

 private:
  enum class Level { nothing, trigger, everything };
  using Modifiers = std::vector<std::uint32_t>;

  unsigned grab(std::uint8_t code, const Modifiers& modifiers);
  void grabPart(std::uint8_t code, const Modifiers& modifiers);
  void ungrab(std::uint8_t code, const Modifiers& modifiers);
  void grabWholeKeys();
  void grabCombinations(const std::vector<std::uint8_t>& modifiers);
  void letGoOfEverything();
  // Locks left out.
  std::vector<std::uint8_t> typingModifiers() const;
  std::vector<std::uint8_t> chordModifiers() const;
  std::vector<std::uint8_t> modifiersThatMatter() const;

  SessionKeyboard keyboard_;
  OwnedCombinations owned_;
  std::vector<std::uint8_t> typingKeys_;
  ModifierBits bits_;
  std::map<std::uint8_t, Modifiers> trigger_;        ///< by key code
  std::map<std::uint8_t, Modifiers> besideTrigger_;  ///< of the trigger's keys, held while everything is
  std::set<std::uint8_t> partlyHeld_;                ///< keys held by combinations, the trigger's apart
  Level level_ = Level::nothing;
  std::uint8_t locks_ = 0;
  bool chordsPending_ = false;
};

}  // namespace tessarin::x11
