#include "platform/x11/KeyTranslator.h"

#include <xkbcommon/xkbcommon-keysyms.h>

#include <cstdlib>

#include "platform/KeyCodes.h"

namespace tessarin::x11 {
namespace {

struct NamedKey {
  xkb_keysym_t symbol;
  std::int64_t code;
};
constexpr NamedKey namedKeys[] = {
    {XKB_KEY_Return, keycode::returnKey},
    {XKB_KEY_Tab, keycode::tab},
    {XKB_KEY_ISO_Left_Tab, keycode::tab},
    {XKB_KEY_space, keycode::space},
    {XKB_KEY_BackSpace, keycode::deleteBackward},
    {XKB_KEY_Escape, keycode::escape},
    {XKB_KEY_Delete, keycode::forwardDelete},
    {XKB_KEY_Left, keycode::left},
    {XKB_KEY_Right, keycode::right},
    {XKB_KEY_Down, keycode::down},
    {XKB_KEY_Up, keycode::up},
};

void append(std::u16string& text, char32_t c) {
  if (c < 0x10000) {
    text += static_cast<char16_t>(c);
    return;
  }
  text += static_cast<char16_t>(0xd800 + ((c - 0x10000) >> 10));
  text += static_cast<char16_t>(0xdc00 + ((c - 0x10000) & 0x3ff));
}

std::string composedText(xkb_compose_state* state) {
  char buffer[256];
  const int size = xkb_compose_state_get_utf8(state, buffer, sizeof buffer);
  return size > 0 && size < int{sizeof buffer} ? std::string(buffer, static_cast<std::size_t>(size))
                                               : std::string();
}

}  // namespace

std::u16string utf16Text(const std::string& text) {
  std::u16string result;
  for (std::size_t i = 0; i < text.size();) {
    const auto lead = static_cast<unsigned char>(text[i++]);
    const int following = lead < 0x80 ? 0 : lead < 0xe0 ? 1 : lead < 0xf0 ? 2 : 3;
    char32_t c = following == 0 ? lead : lead & (0x3f >> following);
    for (int k = 0; k < following && i < text.size(); ++k) {
      c = (c << 6) | (static_cast<unsigned char>(text[i++]) & 0x3f);
    }
    append(result, c);
  }
  return result;
}

std::int64_t programKeyCode(xkb_keysym_t symbol, std::uint8_t code) {
  for (const NamedKey& key : namedKeys) {
    if (key.symbol == symbol) return key.code;
  }
  return keycode::other + code;
}

std::uint64_t programFlags(const ModifierBits& bits, std::uint8_t modifiers) {
  const unsigned chord = modifiers & bits.chord();
  std::uint64_t flags = 0;
  if ((modifiers & ModifierBits::capsLock) != 0) flags |= keyflag::capsLock;
  if ((modifiers & ModifierBits::shift) != 0) flags |= keyflag::shift;
  if ((chord & ModifierBits::control) != 0) flags |= keyflag::control;
  if ((chord & bits.alt) != 0) flags |= keyflag::option;
  if ((chord & bits.super) != 0) flags |= keyflag::command;
  return flags;
}

KeyTranslator::KeyTranslator(const std::string& locale) : context_(xkb_context_new(XKB_CONTEXT_NO_FLAGS)) {
  for (const std::string& name : {locale, std::string("en_US.UTF-8")}) {
    if (table_) break;
    table_.reset(
        xkb_compose_table_new_from_locale(context_.get(), name.c_str(), XKB_COMPOSE_COMPILE_NO_FLAGS));
  }
  if (table_) state_.reset(xkb_compose_state_new(table_.get(), XKB_COMPOSE_STATE_NO_FLAGS));
}

std::string KeyTranslator::composeLocale() {
  for (const char* name : {"LC_ALL", "LC_CTYPE", "LANG"}) {
    const char* value = std::getenv(name);  // NOLINT(concurrency-mt-unsafe): nothing here writes it
    if (value != nullptr && *value != '\0') return value;
  }
  return "C";
}

void KeyTranslator::reset() {
  if (state_) xkb_compose_state_reset(state_.get());
}

std::optional<KeyEvent> KeyTranslator::translate(const KeyboardLayout& layout, const TypedKey& key) {
  const xkb_keysym_t symbol = layout.symbol(key);
  if (symbol == XKB_KEY_NoSymbol || isModifierSymbol(symbol) || isMediaSymbol(symbol)) return std::nullopt;
  std::string text = symbolText(symbol);
  std::int64_t code = programKeyCode(symbol, key.code);
  if (state_ && xkb_compose_state_feed(state_.get(), symbol) == XKB_COMPOSE_FEED_ACCEPTED) {
    switch (xkb_compose_state_get_status(state_.get())) {
      case XKB_COMPOSE_COMPOSING:
        return std::nullopt;
      case XKB_COMPOSE_COMPOSED:
        text = composedText(state_.get());
        code = keycode::other + key.code;
        break;
      case XKB_COMPOSE_CANCELLED:
        text.clear();
        code = keycode::other + key.code;
        break;
      case XKB_COMPOSE_NOTHING:
        break;
    }
  }
  KeyEvent event;
  event.keyCode = code;
  event.flags = programFlags(layout.bits(), key.modifiers);
  event.text = utf16Text(text);
  return event;
}

}  // namespace tessarin::x11
