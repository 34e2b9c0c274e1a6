#pragma once

#include <xkbcommon/xkbcommon-compose.h>

#include <memory>
#include <optional>
#include <string>

#include "platform/EventTap.h"
#include "platform/x11/KeyboardLayout.h"

namespace tessarin::x11 {

/// Makes key-down events of the keys typed, following Compose and dead-key sequences. One thread.
class KeyTranslator {
 public:
  /// `locale` names the Compose table, as toolkits choose it ("de_DE.UTF-8"); one without a table gets that
  /// of American English.
  explicit KeyTranslator(const std::string& locale = composeLocale());

  /// None for a key that is no key-down event: a modifier, a lock, a media key, a key inside a sequence. The
  /// key that ends a sequence carries the composed text; one that breaks a sequence off carries none, because
  /// toolkits then drop the sequence in ways of their own.
  std::optional<KeyEvent> translate(const KeyboardLayout& layout, const TypedKey& key);
  /// Forgets a sequence that was begun.
  void reset();

  /// The locale of the user's environment.
  static std::string composeLocale();

 private:
  struct FreeCompose {
    void operator()(xkb_compose_table* table) const noexcept { xkb_compose_table_unref(table); }
    void operator()(xkb_compose_state* state) const noexcept { xkb_compose_state_unref(state); }
  };

  XkbOwned<xkb_context> context_;
  std::unique_ptr<xkb_compose_table, FreeCompose> table_;
  std::unique_ptr<xkb_compose_state, FreeCompose> state_;
};

/// The program's key code for a key: by what it produces, or else by its position.
std::int64_t programKeyCode(xkb_keysym_t symbol, std::uint8_t code);
/// `text` is well-formed UTF-8, as the keyboard library gives it.
std::u16string utf16Text(const std::string& text);
/// The program's modifier flags for the modifiers in effect.
std::uint64_t programFlags(const ModifierBits& bits, std::uint8_t modifiers);

}  // namespace tessarin::x11
