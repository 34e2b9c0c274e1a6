#pragma once

#include <cstdint>
#include <string>

namespace tessarin {

/// What stands in the document of the shortcode being collected. It can hold more than the detector's query
/// does (letters beyond its limit are dropped there, not in the document), and it begins with the trigger
/// character that opened the collecting, whatever the preference says by now.
class TypedShortcode {
 public:
  void begin(const std::string& triggerCharacter);
  void append(const std::string& characters);
  /// Takes the last letter back; the trigger character stays.
  void deleteLast();
  /// A key that moves carets has been passed to the application: the shortcode may not stand before the caret
  /// any more. So it stays until the next `begin`.
  void noteCaretMove() { caretMayHaveMoved_ = true; }

  std::string text() const { return trigger_ + letters_; }
  /// Characters (grapheme clusters) to erase.
  std::int64_t length() const;
  bool caretMayHaveMoved() const { return caretMayHaveMoved_; }

 private:
  std::string trigger_;
  std::string letters_;
  bool caretMayHaveMoved_ = false;
};

}  // namespace tessarin
