#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tessarin {

/// One entry that the popup can offer and insert. A plain value, copied, never shared.
struct Snippet {
  /// "emoji_" or "kaomoji_" and the trigger; a version-4 UUID in upper case for the user's own.
  std::string id;
  std::string name;                   ///< display name
  std::string trigger;                ///< the shortcode typed after the trigger character
  std::string replacement;            ///< the text inserted; may contain template variables
  std::vector<std::string> keywords;  ///< further search words, in order of likelihood
  std::string category;
  bool isBuiltIn = false;

  /// All seven fields, texts by canonical equivalence.
  bool operator==(const Snippet& other) const;
};

/// The same for equal snippets, from all seven fields.
std::size_t hashValue(const Snippet& snippet);

}  // namespace tessarin
