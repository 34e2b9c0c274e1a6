#include "model/MatchScore.h"

#include <optional>

#include "text/Graphemes.h"

namespace tessarin {
namespace {

int charactersOf(std::string_view text) {
  return static_cast<int>(text::characterCount(text));
}

bool isSeparator(std::string_view text, std::size_t at) {
  return text[at] == '_' && text::isBoundary(text, at) && text::isBoundary(text, at + 1);
}

bool anySegmentStartsWith(std::string_view trigger, std::string_view query) {
  std::size_t begin = 0;
  for (std::size_t at = 0; at <= trigger.size(); ++at) {
    if (at < trigger.size() && !isSeparator(trigger, at)) continue;
    const std::string_view segment = trigger.substr(begin, at - begin);
    if (!segment.empty() && text::startsWith(segment, query)) return true;
    begin = at + 1;
  }
  return false;
}

std::optional<int> triggerScore(std::string_view query, std::string_view trigger) {
  if (text::equals(trigger, query)) return exactTriggerScore;
  if (text::startsWith(trigger, query)) return triggerPrefixScore - charactersOf(trigger);
  if (anySegmentStartsWith(trigger, query)) return segmentPrefixScore - charactersOf(trigger);
  if (text::contains(trigger, query)) return insideTriggerScore - charactersOf(trigger);
  return std::nullopt;
}

std::optional<int> keywordScore(std::string_view query, std::string_view keyword) {
  if (text::equals(keyword, query)) return exactKeywordScore;
  if (text::startsWith(keyword, query)) return keywordPrefixScore - charactersOf(keyword);
  if (text::contains(keyword, query)) return insideKeywordScore - charactersOf(keyword);
  return std::nullopt;
}

}  // namespace

int matchScore(std::string_view query, std::string_view trigger, const std::vector<std::string>& keywords) {
  if (query.empty()) return 0;
  const std::string folded = text::lowercased(query);
  if (const auto score = triggerScore(folded, text::lowercased(trigger))) return *score;
  for (const std::string& keyword : keywords) {
    if (const auto score = keywordScore(folded, text::lowercased(keyword))) return *score;
  }
  return 0;
}

}  // namespace tessarin
