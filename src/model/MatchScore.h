#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// The score of a snippet whose trigger or keyword is the query itself.
constexpr int exactTriggerScore = 10000;
constexpr int exactKeywordScore = 800;

/// What the length of the trigger or keyword (in characters) is taken off, tier by tier.
constexpr int triggerPrefixScore = 1100;
constexpr int segmentPrefixScore = 600;
constexpr int keywordPrefixScore = 500;
constexpr int insideTriggerScore = 200;
constexpr int insideKeywordScore = 150;

/// How well a snippet fits the query, ignoring case; below 1 it is not to be offered. Any match of the
/// trigger goes before the keywords, and the first keyword that matches in any way decides. This is the
/// measure that `SearchIndex` reproduces.
int matchScore(std::string_view query, std::string_view trigger, const std::vector<std::string>& keywords);

}  // namespace tessarin
