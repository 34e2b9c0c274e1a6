#include "platform/x11/KeyboardLayout.h"

#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon-x11.h>

#include <algorithm>

#include "platform/x11/Handles.h"
#include "platform/x11/XkbProtocol.h"

namespace tessarin::x11 {
namespace {

constexpr unsigned realModifiers = 0xff;

bool isBetween(xkb_keysym_t symbol, xkb_keysym_t first, xkb_keysym_t last) {
  return symbol >= first && symbol <= last;
}

bool types(xkb_keysym_t symbol) {
  return symbol != XKB_KEY_NoSymbol && !isModifierSymbol(symbol) && !isMediaSymbol(symbol);
}

}  // namespace

bool isModifierSymbol(xkb_keysym_t symbol) {
  return isBetween(symbol, XKB_KEY_Shift_L, XKB_KEY_Hyper_R) ||
         isBetween(symbol, XKB_KEY_ISO_Lock, XKB_KEY_ISO_Last_Group_Lock) ||
         isBetween(symbol, XKB_KEY_ISO_Level5_Shift, XKB_KEY_ISO_Level5_Lock) ||
         symbol == XKB_KEY_Mode_switch || symbol == XKB_KEY_Num_Lock || symbol == XKB_KEY_Scroll_Lock;
}

bool isMediaSymbol(xkb_keysym_t symbol) {
  return isBetween(symbol, 0x10080000, 0x1008ffff);
}

std::string symbolText(xkb_keysym_t symbol) {
  char buffer[8];
  const int size = xkb_keysym_to_utf8(symbol, buffer, sizeof buffer);
  return size > 1 ? std::string(buffer, static_cast<std::size_t>(size) - 1) : std::string();
}

bool announceXkb(xcb_connection_t* connection) {
  const Owned<xcb_xkb_use_extension_reply_t> reply(
      xcb_xkb_use_extension_reply(connection, xcb_xkb_use_extension(connection, 1, 0), nullptr));
  return reply && reply->supported != 0;
}

std::unique_ptr<KeyboardLayout> KeyboardLayout::read(xcb_connection_t* connection) {
  if (!announceXkb(connection)) return nullptr;
  std::unique_ptr<KeyboardLayout> layout(new KeyboardLayout);
  return layout->load(connection) ? std::move(layout) : nullptr;
}

bool KeyboardLayout::load(xcb_connection_t* connection) {
  context_.reset(xkb_context_new(XKB_CONTEXT_NO_FLAGS));
  const int device = xkb_x11_get_core_keyboard_device_id(connection);
  if (!context_ || device < 0) return false;
  keymap_.reset(
      xkb_x11_keymap_new_from_device(context_.get(), connection, device, XKB_KEYMAP_COMPILE_NO_FLAGS));
  if (!keymap_) return false;
  state_.reset(xkb_state_new(keymap_.get()));
  findModifiers();
  findTypingKeys();
  return true;
}

std::string KeyboardLayout::fingerprint(xcb_connection_t* connection) {
  constexpr std::uint16_t everyPart = 0xff;
  const auto cookie = xcb_xkb_get_map(connection, XCB_XKB_ID_USE_CORE_KBD, everyPart, 0, 0, 0, 0, 0, 0, 0, 0,
                                      0, 0, 0, 0, 0, 0, 0, 0);
  const Owned<xcb_xkb_get_map_reply_t> reply(xcb_xkb_get_map_reply(connection, cookie, nullptr));
  if (!reply) return {};
  constexpr std::size_t changing = 8;  // device, sequence number and length stand before the mapping
  constexpr std::size_t shortest = 32;
  const std::size_t size = shortest + (std::size_t{4} * reply->length);
  return {reinterpret_cast<const char*>(reply.get()) + changing, size - changing};
}

xkb_keysym_t KeyboardLayout::symbol(const TypedKey& key) const {
  xkb_state_update_mask(state_.get(), key.modifiers, 0, 0, 0, 0, key.group);
  return xkb_state_key_get_one_sym(state_.get(), key.code);
}

std::vector<xkb_keysym_t> KeyboardLayout::symbols(xkb_keycode_t code) const {
  std::vector<xkb_keysym_t> result;
  for (xkb_layout_index_t group = 0; group < xkb_keymap_num_layouts_for_key(keymap_.get(), code); ++group) {
    for (xkb_level_index_t level = 0; level < xkb_keymap_num_levels_for_key(keymap_.get(), code, group);
         ++level) {
      const xkb_keysym_t* found = nullptr;
      const int count = xkb_keymap_key_get_syms_by_level(keymap_.get(), code, group, level, &found);
      result.insert(result.end(), found, found + count);
    }
  }
  return result;
}

void KeyboardLayout::findModifiers() {
  const XkbOwned<xkb_state> trial(xkb_state_new(keymap_.get()));
  for (unsigned code = xkb_keymap_min_keycode(keymap_.get()); code < held_.size(); ++code) {
    xkb_state_update_key(trial.get(), code, XKB_KEY_DOWN);
    held_[code] = xkb_state_serialize_mods(trial.get(), XKB_STATE_MODS_DEPRESSED) & realModifiers;
    locked_[code] = xkb_state_serialize_mods(trial.get(), XKB_STATE_MODS_LOCKED) & realModifiers;
    held_[code] &= static_cast<std::uint8_t>(~locked_[code]);
    xkb_state_update_key(trial.get(), code, XKB_KEY_UP);
    xkb_state_update_mask(trial.get(), 0, 0, 0, 0, 0, 0);
    nameModifiers(code);
  }
}

void KeyboardLayout::nameModifiers(xkb_keycode_t code) {
  for (const xkb_keysym_t symbol : symbols(code)) {
    if (isBetween(symbol, XKB_KEY_Alt_L, XKB_KEY_Alt_R)) bits_.alt |= held_[code];
    if (isBetween(symbol, XKB_KEY_Super_L, XKB_KEY_Super_R)) bits_.super |= held_[code];
    if (symbol == XKB_KEY_Num_Lock) bits_.numLock |= locked_[code];
    if (symbol == XKB_KEY_Scroll_Lock) bits_.scrollLock |= locked_[code];
    if (symbol == XKB_KEY_ISO_Level3_Shift || symbol == XKB_KEY_ISO_Level5_Shift ||
        symbol == XKB_KEY_Mode_switch) {
      bits_.levels |= held_[code];
    }
  }
}

void KeyboardLayout::findTypingKeys() {
  const xkb_keycode_t last = std::min<xkb_keycode_t>(xkb_keymap_max_keycode(keymap_.get()), 255);
  for (xkb_keycode_t code = xkb_keymap_min_keycode(keymap_.get()); code <= last; ++code) {
    const auto found = symbols(code);
    if (std::ranges::any_of(found, types)) typingKeys_.push_back(static_cast<std::uint8_t>(code));
  }
}

bool KeyboardLayout::mayProduce(std::uint8_t code, const std::string& text) const {
  return std::ranges::any_of(symbols(code), [&](xkb_keysym_t symbol) {
    return symbolText(symbol) == text || symbolText(xkb_keysym_to_upper(symbol)) == text ||
           symbolText(xkb_keysym_to_lower(symbol)) == text;
  });
}

std::vector<KeyCombination> KeyboardLayout::combinations(const std::string& text) const {
  std::vector<KeyCombination> result;
  const xkb_layout_index_t groups = xkb_keymap_num_layouts(keymap_.get());
  for (const std::uint8_t code : typingKeys_) {
    if (!mayProduce(code, text)) continue;
    for (unsigned modifiers = 0; modifiers <= realModifiers; ++modifiers) {
      if ((modifiers & bits_.chord()) != 0) continue;
      for (std::uint8_t group = 0; group < groups; ++group) {
        const TypedKey key{code, static_cast<std::uint8_t>(modifiers), group};
        if (symbolText(symbol(key)) != text) continue;
        result.push_back({key.code, key.modifiers});
        break;
      }
    }
  }
  return result;
}

std::optional<TypedKey> KeyboardLayout::keyTyping(const std::string& text, std::uint8_t group) const {
  const auto groups = static_cast<std::uint8_t>(xkb_keymap_num_layouts(keymap_.get()));
  const auto found = combinations(text);
  for (std::uint8_t i = 0; i < groups; ++i) {
    for (const KeyCombination& combination : found) {
      const TypedKey key{combination.code, combination.modifiers,
                         static_cast<std::uint8_t>((group + i) % groups)};
      if (symbolText(symbol(key)) == text) return key;
    }
  }
  return std::nullopt;
}

std::optional<std::uint8_t> KeyboardLayout::keyHolding(std::uint8_t modifier) const {
  const auto found = std::ranges::find(held_, modifier);
  if (modifier == 0 || found == held_.end()) return std::nullopt;
  return static_cast<std::uint8_t>(found - held_.begin());
}

std::optional<std::uint8_t> KeyboardLayout::keyFor(xkb_keysym_t wanted, std::uint8_t group) const {
  const auto keyIn = [&](std::uint8_t candidate) -> std::optional<std::uint8_t> {
    for (const std::uint8_t code : typingKeys_) {
      if (symbol({code, 0, candidate}) == wanted) return code;
    }
    return std::nullopt;
  };
  if (const auto code = keyIn(group)) return code;
  for (xkb_layout_index_t other = 0; other < xkb_keymap_num_layouts(keymap_.get()); ++other) {
    if (const auto code = keyIn(static_cast<std::uint8_t>(other))) return code;
  }
  return std::nullopt;
}

}  // namespace tessarin::x11
