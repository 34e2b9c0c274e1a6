#pragma once

#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <memory>
#include <string>

#include "platform/x11/Handles.h"
#include "platform/x11/KeyboardLayout.h"

namespace tessarin::testing {

/// Types at the server without any pause, from a connection of its own.
class Typist {
 public:
  /// Which keyboard the keys come from: the server's device for synthetic keys, or a real one.
  enum class Keyboard { synthetic, real };

  explicit Typist(const std::string& display, Keyboard keyboard = Keyboard::synthetic);

  /// Each character with the modifiers that it needs; "\n" is Return.
  void type(const std::string& text);
  void tap(xkb_keysym_t symbol);
  void press(xkb_keysym_t symbol);
  void release(xkb_keysym_t symbol);
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
  x11::TypedKey find(xkb_keysym_t symbol) const;
  void setModifiers(bool down, std::uint8_t modifiers);

  x11::Connection connection_;
  std::unique_ptr<x11::KeyboardLayout> layout_;
  std::uint8_t group_ = 0;
  std::uint8_t realDevice_ = 0;
  std::uint8_t realPress_ = 0;
};

}  // namespace tessarin::testing
