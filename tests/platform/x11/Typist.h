#pragma once

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <string_view>

#include "platform/x11/Handles.h"
#include "platform/x11/KeyboardLayout.h"

namespace tessarin::testing {

/// Types at the server without any pause, from a connection of its own.
class Typist {
 public:
  /// Which keyboard the keys come from: the server's device for synthetic keys, or a real one.
  enum class Keyboard { synthetic, real };

  explicit Typist(const std::string& display, Keyboard keyboard = Keyboard::synthetic);

  /// Each character with the modifiers that it needs; "\n" is Return. "<Left>" taps the key of that name as
  /// it is, "<+Shift_L>" presses it and "<-Shift_L>" lets it go.
  void type(std::string_view keys);
  /// Returns when the server has taken all keys.
  void sync();
  /// After a change of the mapping.
  void readLayout();
  /// By the key that goes to the next of two groups, so in order with the other keys.
  void switchGroup(std::uint8_t group);
  /// Locks a layout group and modifiers, as a layout switcher and the lock keys do.
  void lock(std::uint8_t group, std::uint8_t modifiers = 0);

 private:
  void key(bool down, std::uint8_t code);
  void typeCharacter(const std::string& character);
  void typeNamed(const std::string& key);
  x11::TypedKey find(xkb_keysym_t symbol) const;
  void setModifiers(bool down, std::uint8_t modifiers);

  x11::Connection connection_;
  std::unique_ptr<x11::KeyboardLayout> layout_;
  std::uint8_t group_ = 0;
  std::uint8_t realDevice_ = 0;
  std::uint8_t realPress_ = 0;
};

}  // namespace tessarin::testing
