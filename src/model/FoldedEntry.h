#pragma once

#include <functional>
#include <string_view>

#include "model/FoldedQuery.h"

namespace tessarin {

/// Stands between texts that are laid end to end: never a byte of UTF-8.
constexpr char textEnd = '\xff';

/// What the search knows of a snippet, as views of folded text that somebody else holds.
struct FoldedEntry {
  std::string_view trigger;
  std::string_view keywords;  ///< each followed by `textEnd`
  int triggerLength = 0;      ///< in characters

  /// The same as `matchScore` of the texts that were folded.
  int score(const FoldedQuery& query) const;

  /// Calls `visit` with each keyword and its length in characters.
  void forEachKeyword(const std::function<void(std::string_view keyword, int length)>& visit) const;
};

}  // namespace tessarin
