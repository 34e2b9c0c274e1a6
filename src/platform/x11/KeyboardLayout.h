#pragma once

#include <xcb/xcb.h>
#include <xkbcommon/xkbcommon.h>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/x11/TypedKey.h"

namespace tessarin::x11 {

struct FreeXkb {
  void operator()(xkb_context* context) const noexcept { xkb_context_unref(context); }
  void operator()(xkb_keymap* keymap) const noexcept { xkb_keymap_unref(keymap); }
  void operator()(xkb_state* state) const noexcept { xkb_state_unref(state); }
};
template <class T>
using XkbOwned = std::unique_ptr<T, FreeXkb>;

/// The keyboard mapping that the server had when it was read, with all its groups. One thread.
class KeyboardLayout {
 public:
  /// Null when the server does not tell its mapping.
  static std::unique_ptr<KeyboardLayout> read(xcb_connection_t* connection);
  /// Bytes that differ when the mapping differs, for much less than reading it; empty on failure.
  static std::string fingerprint(xcb_connection_t* connection);

  xkb_keysym_t symbol(const TypedKey& key) const;
  /// Every key and set of modifiers that produces `text` (UTF-8) in some group, without a chord.
  std::vector<KeyCombination> combinations(const std::string& text) const;
  /// The key and modifiers that type `text`, in `group` if they can, else in another one.
  std::optional<TypedKey> keyTyping(const std::string& text, std::uint8_t group) const;
  /// The keys that are not only modifiers, locks or media keys.
  const std::vector<std::uint8_t>& typingKeys() const { return typingKeys_; }
  const ModifierBits& bits() const { return bits_; }
  /// The modifiers that are in effect exactly while the key is down.
  std::uint8_t heldModifiers(std::uint8_t code) const { return held_[code]; }
  /// A key that holds exactly this modifier.
  std::optional<std::uint8_t> keyHolding(std::uint8_t modifier) const;
  /// The key that gives the symbol without modifiers: in `group` if there is one, else in another group, as
  /// toolkits look for the keys of their shortcuts.
  std::optional<std::uint8_t> keyFor(xkb_keysym_t symbol, std::uint8_t group) const;

 private:
  KeyboardLayout() = default;
  bool load(xcb_connection_t* connection);
  void findModifiers();
  void nameModifiers(xkb_keycode_t code);
  void findTypingKeys();
  std::vector<xkb_keysym_t> symbols(xkb_keycode_t code) const;
  bool mayProduce(std::uint8_t code, const std::string& text) const;

  XkbOwned<xkb_context> context_;
  XkbOwned<xkb_keymap> keymap_;
  XkbOwned<xkb_state> state_;
  std::array<std::uint8_t, 256> held_{};
  std::array<std::uint8_t, 256> locked_{};
  std::vector<std::uint8_t> typingKeys_;
  ModifierBits bits_;
};

/// Tells the server that this client knows XKB. Without that it answers no XKB request and leaves the group
/// out of key events. False when the server does not know it.
bool announceXkb(xcb_connection_t* connection);
/// Whether the key with this symbol types nothing by itself: modifiers, locks, group switches.
bool isModifierSymbol(xkb_keysym_t symbol);
/// The keys of media and of the machine itself (volume, brightness, …).
bool isMediaSymbol(xkb_keysym_t symbol);
/// UTF-8; empty when the symbol stands for no character.
std::string symbolText(xkb_keysym_t symbol);

}  // namespace tessarin::x11
