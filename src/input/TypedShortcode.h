#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "input/Preceding.h"

namespace tessarin {

/// What stands in the document of the shortcode being collected. It can hold more than the detector's query
/// does (letters beyond its limit are dropped there, not in the document), and it begins with the trigger
/// character that opened the collecting, whatever the preference says by now.
class TypedShortcode {
 public:
  void begin(const std::string& triggerCharacter, Preceding preceding = Preceding::unknown);
  void append(const std::string& characters);
  /// Takes the last letter back; the trigger character stays.
  void deleteLast();
  /// A key that moves carets has been passed to the application: the shortcode may not stand before the caret
  /// any more. So it stays until the next `begin`.
  void noteCaretMove() { caretMayHaveMoved_ = true; }
  /// The text before the caret has been read, from two characters before the shortcode's letters on or all of
  /// it. What stands before the shortcode does not change any more once it is known.
  void noteTextBeforeCaret(std::string_view text);

  std::string text() const { return trigger_ + letters_; }
  /// Characters (grapheme clusters) to erase.
  std::int64_t length() const;
  bool caretMayHaveMoved() const { return caretMayHaveMoved_; }
  Preceding preceding() const { return preceding_; }

 private:
  std::string trigger_;
  std::string letters_;
  bool caretMayHaveMoved_ = false;
  Preceding preceding_ = Preceding::unknown;
};

}  // namespace tessarin
