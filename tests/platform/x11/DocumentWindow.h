#pragma once

#include <xkbcommon/xkbcommon-keysyms.h>

#include "platform/x11/Handles.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/XkbProtocol.h"

namespace tessarin::testing {

inline std::string nameOf(xkb_keysym_t symbol) {
  char name[64];
  xkb_keysym_get_name(symbol, name, sizeof name);
  return name;
}

inline std::string modifierNames(const x11::ModifierBits& bits, std::uint8_t modifiers) {
  std::string names;
  if ((modifiers & x11::ModifierBits::control) != 0) names += "Control-";
  if ((modifiers & bits.alt & bits.chord()) != 0) names += "Alt-";
  if ((modifiers & bits.super) != 0) names += "Super-";
  return names;
}

// As toolkits do: the key's symbol in the first layout counts, whichever group is in effect.

/// A window with the keyboard focus that keeps what is typed into it as text, like an editor: BackSpace
/// erases, and a pasting chord (Control-v) writes `clipboard`. Any other chord or nameless key is written out
/// in angle brackets ("<Shift-BackSpace>").
class DocumentWindow {
 public:
  explicit DocumentWindow(const std::string& display) : connection_(xcb_connect(display.c_str(), nullptr)) {
    xcb_connection_t* c = connection_.get();
    x11::announceXkb(c);
    xkbEvent_ = xcb_get_extension_data(c, &xcb_xkb_id)->first_event;
    constexpr std::uint16_t changes = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
    xcb_xkb_select_events(c, XCB_XKB_ID_USE_CORE_KBD, changes, 0, changes, 0xff, 0xff, nullptr);
    layout_ = x11::KeyboardLayout::read(c);
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(c)).data;
    window_ = xcb_generate_id(c);
    const std::uint32_t values[] = {1, XCB_EVENT_MASK_KEY_PRESS | XCB_EVENT_MASK_FOCUS_CHANGE};
    xcb_create_window(c, XCB_COPY_FROM_PARENT, window_, screen->root, 0, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(c, window_);
    takeFocus();
  }

  /// Everything that had been typed when this was called.
  const std::string& text() {
    xcb_connection_t* c = connection_.get();
    const x11::Owned<xcb_get_input_focus_reply_t> sync(
        xcb_get_input_focus_reply(c, xcb_get_input_focus(c), nullptr));
    while (const x11::Owned<xcb_generic_event_t> event{xcb_poll_for_event(c)}) take(*event);
    return text_;
  }
  /// What an insertion through the accessibility bus does.
  void replaceBeforeCaret(int characters, const std::string& text) {
    for (int i = 0; i < characters; ++i) eraseOne();
    text_ += text;
  }
  void takeFocus() {
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
    text();
  }
  void clear() { text_.clear(); }

  int presses() const { return presses_; }
  /// How often a grab took the keyboard away from the window.
  int grabs() const { return grabs_; }
  /// How often by the last paste, however late anybody looks.
  int grabsAtPaste() const { return grabsAtPaste_; }
  /// As far as its events tell, those about grabs included.
  bool hasFocus() const { return hasFocus_; }
  int pastes() const { return pastes_; }
  std::string clipboard;

 private:
  void take(const xcb_generic_event_t& event) {
    const std::uint8_t type = event.response_type & 0x7f;
    const auto& key = reinterpret_cast<const xcb_key_press_event_t&>(event);
    if (type == xkbEvent_) layout_ = x11::KeyboardLayout::read(connection_.get());
    if (type == XCB_KEY_PRESS) takePress(x11::TypedKey::of(key.detail, key.state));
    if (type == XCB_FOCUS_IN || type == XCB_FOCUS_OUT) hasFocus_ = type == XCB_FOCUS_IN;
    if (type == XCB_FOCUS_OUT &&
        reinterpret_cast<const xcb_focus_out_event_t&>(event).mode == XCB_NOTIFY_MODE_GRAB) {
      ++grabs_;
    }
  }
  void takePress(const x11::TypedKey& key) {
    ++presses_;
    const xkb_keysym_t symbol = layout_->symbol(key);
    if (symbol == XKB_KEY_NoSymbol || x11::isModifierSymbol(symbol)) return;
    const std::string chord = modifierNames(layout_->bits(), key.modifiers);
    const bool isShifted = (key.modifiers & x11::ModifierBits::shift) != 0;
    const std::string typed = x11::symbolText(symbol);
    if (symbol == XKB_KEY_BackSpace && chord.empty() && !isShifted) {
      eraseOne();
    } else if (symbol == XKB_KEY_Return && chord.empty()) {
      text_ += '\n';
    } else if (chord == "Control-" && !isShifted && isPasteKey(key.code) && !clipboard.empty()) {
      text_ += clipboard;
      ++pastes_;
      grabsAtPaste_ = grabs_;
    } else if (!chord.empty() || typed.empty() || static_cast<unsigned char>(typed[0]) < ' ') {
      text_ += "<" + chord + (isShifted ? "Shift-" : "") + nameOf(symbol) + ">";
    } else {
      text_ += typed;
    }
  }
  bool isPasteKey(std::uint8_t code) const {
    return layout_->symbol({code, 0, 0}) == XKB_KEY_v || layout_->symbol({code, 0, 1}) == XKB_KEY_v;
  }
  void eraseOne() {
    while (!text_.empty() && (static_cast<unsigned char>(text_.back()) & 0xc0) == 0x80) text_.pop_back();
    if (!text_.empty()) text_.pop_back();
  }

  x11::Connection connection_;
  std::unique_ptr<x11::KeyboardLayout> layout_;
  xcb_window_t window_ = XCB_NONE;
  std::uint8_t xkbEvent_ = 0;
  std::string text_;
  int presses_ = 0;
  int pastes_ = 0;
  int grabsAtPaste_ = 0;
  int grabs_ = 0;
  bool hasFocus_ = false;
};

}  // namespace tessarin::testing
