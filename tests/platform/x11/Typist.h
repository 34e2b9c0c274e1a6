#pragma once

#include <xcb/xinput.h>
#include <xcb/xtest.h>
#include <xkbcommon/xkbcommon-keysyms.h>
#include <xkbcommon/xkbcommon.h>

#include <cstdint>
#include <stdexcept>
#include <string_view>

#include "platform/x11/Handles.h"
#include "platform/x11/KeyTranslator.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/XkbProtocol.h"
#include "text/Graphemes.h"

namespace tessarin::testing {

inline std::uint8_t realKeyboard(xcb_connection_t* connection) {
  const x11::Owned<xcb_input_xi_query_version_reply_t> version(
      xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
  const x11::Owned<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
      connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
  for (auto at = xcb_input_xi_query_device_infos_iterator(reply.get()); at.rem > 0;
       xcb_input_xi_device_info_next(&at)) {
    const std::string_view name(xcb_input_xi_device_info_name(at.data), at.data->name_len);
    if (at.data->type == XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD && !name.ends_with("XTEST keyboard")) {
      return static_cast<std::uint8_t>(at.data->deviceid);
    }
  }
  throw std::runtime_error("the server has no keyboard");
}

/// Types at the server without any pause, from a connection of its own.
class Typist {
 public:
  /// Which keyboard the keys come from: the server's device for synthetic keys, or a real one.
  enum class Keyboard { synthetic, real };

  explicit Typist(const std::string& display, Keyboard keyboard = Keyboard::synthetic)
      : connection_(xcb_connect(display.c_str(), nullptr)) {
    xcb_connection_t* c = connection_.get();
    x11::announceXkb(c);
    if (keyboard == Keyboard::real) {
      realDevice_ = realKeyboard(c);
      realPress_ = xcb_get_extension_data(c, &xcb_input_id)->first_event + XCB_INPUT_DEVICE_KEY_PRESS;
    }
    readLayout();
  }

  /// Each character with the modifiers that it needs; "\n" is Return. "<Left>" taps the key of that name as
  /// it is, "<+Shift_L>" presses it and "<-Shift_L>" lets it go.
  void type(std::string_view keys) {
    while (!keys.empty()) {
      const bool isNamed = keys.front() == '<';
      const std::string key(isNamed ? keys.substr(0, keys.find('>') + 1) : text::firstCharacter(keys));
      keys.remove_prefix(key.size());
      isNamed ? typeNamed(key) : typeCharacter(key);
    }
    xcb_flush(connection_.get());
  }
  /// Returns when the server has taken all keys.
  void sync() {
    xcb_connection_t* c = connection_.get();
    const x11::Owned<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
  }
  /// Meanwhile the server hears nobody else, as while some window managers move a window.
  void keepServer(bool kept) {
    kept ? xcb_grab_server(connection_.get()) : xcb_ungrab_server(connection_.get());
    sync();
  }
  /// After a change of the mapping.
  void readLayout() { layout_ = x11::KeyboardLayout::read(connection_.get()); }
  /// By the key that goes to the next of two groups, so in order with the other keys.
  void switchGroup(std::uint8_t group) {
    if (group != group_) type("<ISO_Next_Group>");
    group_ = group;
  }
  /// Locks a layout group and modifiers, as a layout switcher and the lock keys do.
  void lock(std::uint8_t group, std::uint8_t modifiers = 0) {
    xcb_xkb_latch_lock_state(connection_.get(), XCB_XKB_ID_USE_CORE_KBD, 0xff, modifiers, 1, group, 0, 0, 0);
    group_ = group;
    sync();
  }

 private:
  void key(bool down, std::uint8_t code) {
    const std::uint8_t type = realPress_ != 0 ? realPress_ + (down ? 0 : 1)
                              : down          ? XCB_KEY_PRESS
                                              : XCB_KEY_RELEASE;
    xcb_test_fake_input(connection_.get(), type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, realDevice_);
  }
  void typeCharacter(const std::string& character) {
    const char16_t c = x11::utf16Text(character).front();
    const x11::TypedKey found = find(c == '\n' ? XKB_KEY_Return : xkb_utf32_to_keysym(c));
    setModifiers(true, found.modifiers);
    key(true, found.code);
    key(false, found.code);
    setModifiers(false, found.modifiers);
  }
  void typeNamed(const std::string& key) {
    const std::string name = key.substr(1, key.size() - 2);
    const char sign = name.front();
    const bool isSigned = sign == '+' || sign == '-';
    const auto symbol = xkb_keysym_from_name(name.c_str() + (isSigned ? 1 : 0), XKB_KEYSYM_NO_FLAGS);
    if (symbol == XKB_KEY_NoSymbol) throw std::runtime_error("no symbol " + name);
    const std::uint8_t code = find(symbol).code;
    if (sign != '-') this->key(true, code);
    if (sign != '+') this->key(false, code);
  }
  x11::TypedKey find(xkb_keysym_t symbol) const {
    for (const unsigned modifiers : {0U, 1U, unsigned{layout_->bits().levels}, layout_->bits().levels | 1U}) {
      for (unsigned code = 8; code < 256; ++code) {
        const x11::TypedKey key{static_cast<std::uint8_t>(code), static_cast<std::uint8_t>(modifiers),
                                group_};
        if (layout_->symbol(key) == symbol) return key;
      }
    }
    throw std::runtime_error("no key for that");
  }
  void setModifiers(bool down, std::uint8_t modifiers) {
    for (unsigned bit = 1; bit <= 0x80; bit <<= 1) {
      if ((modifiers & bit) != 0) key(down, *layout_->keyHolding(static_cast<std::uint8_t>(bit)));
    }
  }

  x11::Connection connection_;
  std::unique_ptr<x11::KeyboardLayout> layout_;
  std::uint8_t group_ = 0;
  std::uint8_t realDevice_ = 0;
  std::uint8_t realPress_ = 0;
};

}  // namespace tessarin::testing
