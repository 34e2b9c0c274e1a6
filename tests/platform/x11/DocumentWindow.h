#pragma once

#include "platform/x11/Handles.h"
#include "platform/x11/KeyboardLayout.h"

namespace tessarin::testing {

/// A window with the keyboard focus that keeps what is typed into it as text, like an editor: BackSpace
/// erases, and a pasting chord (Control-v) writes `clipboard`. Any other chord or nameless key is written out
/// in angle brackets ("<Shift-BackSpace>").
class DocumentWindow {
 public:
  explicit DocumentWindow(const std::string& display);

  /// Everything that had been typed when this was called.
  const std::string& text();
  /// What an insertion through the accessibility bus does.
  void replaceBeforeCaret(int characters, const std::string& text);
  void takeFocus();
  void clear() { text_.clear(); }

  int presses() const { return presses_; }
  /// How often a grab took the keyboard away from the window.
  int grabs() const { return grabs_; }
  /// As far as its events tell, those about grabs included.
  bool hasFocus() const { return hasFocus_; }
  int pastes() const { return pastes_; }
  std::string clipboard;

 private:
  void take(const xcb_generic_event_t& event);
  void takePress(const x11::TypedKey& key);
  bool isPasteKey(std::uint8_t code) const;
  void eraseOne();

  x11::Connection connection_;
  std::unique_ptr<x11::KeyboardLayout> layout_;
  xcb_window_t window_ = XCB_NONE;
  std::uint8_t xkbEvent_ = 0;
  std::string text_;
  int presses_ = 0;
  int pastes_ = 0;
  int grabs_ = 0;
  bool hasFocus_ = false;
};

}  // namespace tessarin::testing
