#include "input/Doubt.h"

#include "text/Graphemes.h"

namespace tessarin {
namespace {

constexpr std::size_t surelyMeant = 3;

// An emoticon is a letter with signs around it (":-D"); a name with a sign is not (":+1").
bool isOneLetter(const CollectedShortcode& shortcode) {
  if (text::characterCount(shortcode.query) < 2) return true;
  return text::alphanumericCount(shortcode.query) < 2 && !shortcode.isTrigger && !shortcode.isKeyword;
}

bool isDoubtfulInTerminal(const CollectedShortcode& shortcode) {
  if (shortcode.preceding == Preceding::lineStart) return true;
  if (shortcode.preceding != Preceding::unknown) return false;
  return !shortcode.isTrigger || text::characterCount(shortcode.query) < surelyMeant;
}

}  // namespace

bool isDoubtful(const CollectedShortcode& shortcode) {
  return isOneLetter(shortcode) || shortcode.preceding == Preceding::word ||
         (shortcode.isInTerminal && isDoubtfulInTerminal(shortcode));
}

}  // namespace tessarin
