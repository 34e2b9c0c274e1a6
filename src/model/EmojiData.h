#pragma once

#include <string>
#include <vector>

#include "model/Snippet.h"

namespace tessarin {

/// One entry of the emoji and kaomoji files that come with the program; lives only while a file is read.
struct EmojiData {
  std::string name;
  std::string trigger;
  std::string replacement;
  std::vector<std::string> keywords;
  std::string category;

  /// The built-in snippet whose id is the prefix ("emoji_" or "kaomoji_") and the trigger.
  Snippet toSnippet(const std::string& idPrefix) const;
};

}  // namespace tessarin
