#pragma once

#include <string_view>

namespace tessarin {

/// What stands directly before a trigger character.
enum class Preceding {
  unknown,    ///< neither read nor seen typed
  lineStart,  ///< nothing, or the end of the line before
  word,       ///< a digit, or a letter of a script that sets words apart
  other
};

/// Judges the last character of a text; an empty one is the start of a line.
Preceding precedingAtEndOf(std::string_view text);

/// What stands before the trigger, where `text` is what stands before the caret, and letters of the shortcode
/// may still be on their way there. `shortcode` begins with the trigger. A text that begins with the trigger
/// counts as the whole of what there is. Unknown where the shortcode is not found.
Preceding precedingIn(std::string_view text, std::string_view shortcode);

}  // namespace tessarin
