#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "model/FoldedEntry.h"
#include "model/Snippet.h"

namespace tessarin {

/// The texts of many snippets that the search needs, in one block of memory.
class SnippetTexts {
 public:
  /// Where the texts of one snippet lie.
  struct Place {
    std::size_t begin = 0;
    std::uint32_t storedBytes = 0;   ///< the trigger as it was given
    std::uint32_t triggerBytes = 0;  ///< the folded trigger
    std::uint32_t keywordBytes = 0;  ///< the folded keywords
    int triggerLength = 0;           ///< in characters
  };

  Place add(const Snippet& snippet);
  /// The same texts out of another block.
  Place add(const SnippetTexts& other, const Place& place);

  std::string_view storedTrigger(const Place& place) const;
  FoldedEntry entry(const Place& place) const;

 private:
  std::string bytes_;
};

}  // namespace tessarin
