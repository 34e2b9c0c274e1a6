#pragma once

#include <xcb/xproto.h>

#include <compare>
#include <cstdint>

namespace tessarin::x11 {

/// A key as it was typed: what is needed to know its text and to type it again.
struct TypedKey {
  std::uint8_t code = 0;       ///< X key code
  std::uint8_t modifiers = 0;  ///< the eight real modifiers in effect, locked ones included
  std::uint8_t group = 0;      ///< the layout group in effect
  bool operator==(const TypedKey&) const = default;

  /// `state` as in a key event, for a client that has announced that it knows XKB.
  static TypedKey of(xcb_keycode_t code, std::uint16_t state) {
    return {code, static_cast<std::uint8_t>(state & 0xff), static_cast<std::uint8_t>((state >> 13) & 3)};
  }
};

/// A key with the modifiers under which it is grabbed.
struct KeyCombination {
  std::uint8_t code = 0;
  std::uint8_t modifiers = 0;
  // NOLINTNEXTLINE(modernize-use-nullptr): the check misreads a defaulted comparison
  auto operator<=>(const KeyCombination&) const = default;
};

/// The real modifier bits that go by a name in the modifier map in force.
struct ModifierBits {
  static constexpr std::uint8_t shift = XCB_MOD_MASK_SHIFT;
  static constexpr std::uint8_t capsLock = XCB_MOD_MASK_LOCK;
  static constexpr std::uint8_t control = XCB_MOD_MASK_CONTROL;
  std::uint8_t alt = 0;
  std::uint8_t super = 0;
  std::uint8_t numLock = 0;
  std::uint8_t scrollLock = 0;
  std::uint8_t levels = 0;  ///< level-3 and level-5 shifts, Mode_switch

  std::uint8_t chord() const { return (control | alt | super) & ~levels; }
  std::uint8_t locks() const { return capsLock | numLock | scrollLock; }
};

}  // namespace tessarin::x11
