#include "input/Preceding.h"

#include <string>

#include "text/Graphemes.h"

namespace tessarin {

Preceding precedingAtEndOf(std::string_view text) {
  if (text.empty() || text.ends_with('\n') || text.ends_with('\r')) return Preceding::lineStart;
  return text::isOfSpacedWord(text::lastCharacters(text, 1)) ? Preceding::word : Preceding::other;
}

Preceding precedingIn(std::string_view text, std::string_view shortcode) {
  const std::string trigger = text::firstCharacter(shortcode);
  const std::size_t at = trigger.empty() ? std::string_view::npos : text.rfind(trigger);
  const bool isFound = at != std::string_view::npos && shortcode.starts_with(text.substr(at));
  return isFound ? precedingAtEndOf(text.substr(0, at)) : Preceding::unknown;
}

}  // namespace tessarin
