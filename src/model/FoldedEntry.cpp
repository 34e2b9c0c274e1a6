#include "model/FoldedEntry.h"

#include "model/MatchScore.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

constexpr std::size_t none = std::string_view::npos;

bool isWhole(std::string_view text, std::size_t at, std::size_t length) {
  return text::isBoundary(text, at) && text::isBoundary(text, at + length);
}

/// The first place at or after `from` where `part` stands as whole characters.
std::size_t findWhole(std::string_view text, std::string_view part, std::size_t from) {
  std::size_t at = text.find(part, from);
  while (at != none && !isWhole(text, at, part.size())) at = text.find(part, at + 1);
  return at;
}

int triggerScore(const FoldedEntry& entry, const FoldedQuery& query, std::size_t at) {
  if (at == 0) {
    return entry.trigger.size() == query.text.size() ? exactTriggerScore
                                                     : triggerPrefixScore - entry.triggerLength;
  }
  while (query.canStartSegment && at != none) {
    if (isSegmentSeparator(entry.trigger, at - 1)) return segmentPrefixScore - entry.triggerLength;
    at = findWhole(entry.trigger, query.text, at + 1);
  }
  return insideTriggerScore - entry.triggerLength;
}

/// The keyword around a place in the list of keywords.
std::string_view keywordAt(std::string_view keywords, std::size_t at) {
  const std::size_t before = at == 0 ? none : keywords.rfind(textEnd, at - 1);
  const std::size_t begin = before == none ? 0 : before + 1;
  return keywords.substr(begin, keywords.find(textEnd, at) - begin);
}

int keywordScore(std::string_view keyword, std::size_t at, const FoldedQuery& query) {
  if (keyword.size() == query.text.size()) return exactKeywordScore;
  return (at == 0 ? keywordPrefixScore : insideKeywordScore) -
         static_cast<int>(text::characterCount(keyword));
}

}  // namespace

int FoldedEntry::score(const FoldedQuery& query) const {
  const std::size_t inTrigger = findWhole(trigger, query.text, 0);
  if (inTrigger != none) return triggerScore(*this, query, inTrigger);
  std::size_t at = keywords.find(query.text);
  while (at != none) {
    const std::string_view keyword = keywordAt(keywords, at);
    const std::size_t whole = findWhole(keyword, query.text, 0);
    if (whole != none) return keywordScore(keyword, whole, query);
    at = keywords.find(query.text, static_cast<std::size_t>(keyword.end() - keywords.begin()));
  }
  return 0;
}

void FoldedEntry::forEachKeyword(
    const std::function<void(std::string_view keyword, int length)>& visit) const {
  for (std::size_t begin = 0; begin < keywords.size();) {
    const std::string_view keyword = keywords.substr(begin, keywords.find(textEnd, begin) - begin);
    visit(keyword, static_cast<int>(text::characterCount(keyword)));
    begin += keyword.size() + 1;
  }
}

}  // namespace tessarin
