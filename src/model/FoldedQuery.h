#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarin {

/// The lower-cased, composed form in which texts are compared byte by byte. Never holds the byte 0xFF.
std::string folded(std::string_view text);

/// Whether the byte is a "_" that stands for itself and so parts two segments of a trigger.
bool isSegmentSeparator(std::string_view text, std::size_t at);

/// A query as the search compares it.
struct FoldedQuery {
  explicit FoldedQuery(std::string_view query);

  std::string text;
  int characters = 0;
  bool canStartSegment = true;  ///< false when it holds a separator: no segment does
};

}  // namespace tessarin
