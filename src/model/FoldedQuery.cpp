#include "model/FoldedQuery.h"

#include "text/Graphemes.h"

namespace tessarin {

std::string folded(std::string_view text) {
  return text::normalized(text::lowercased(text));
}

bool isSegmentSeparator(std::string_view text, std::size_t at) {
  return text[at] == '_' && text::isBoundary(text, at) && text::isBoundary(text, at + 1);
}

FoldedQuery::FoldedQuery(std::string_view query)
    : text(folded(query)), characters(static_cast<int>(text::characterCount(text))) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (isSegmentSeparator(text, at)) canStartSegment = false;
  }
}

}  // namespace tessarin
