#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "model/MatchScore.h"
#include "model/Snippet.h"

namespace tessarin::testing {

/// What the index must answer: every snippet scored one by one, then sorted.
class PlainSearch {
 public:
  std::vector<std::size_t> search(const std::string& query, std::size_t limit) const {
    std::vector<std::pair<int, std::size_t>> kept;
    for (std::size_t i = 0; i < snippets.size(); ++i) {
      const int base = matchScore(query, snippets[i].trigger, snippets[i].keywords);
      if (base >= 1) kept.emplace_back(base + bonus(snippets[i].trigger), i);
    }
    std::stable_sort(kept.begin(), kept.end(),
                     [](const auto& a, const auto& b) { return a.first > b.first; });
    std::vector<std::size_t> positions;
    for (std::size_t i = 0; i < std::min(limit, kept.size()); ++i) positions.push_back(kept[i].second);
    return positions;
  }

  std::vector<Snippet> snippets;
  std::map<std::string, std::int64_t> counts;

 private:
  int bonus(const std::string& trigger) const {
    const auto found = counts.find(trigger);
    if (found == counts.end() || found->second < 1) return 0;
    return static_cast<int>(std::min<std::int64_t>(found->second, 10)) * 50;
  }
};

}  // namespace tessarin::testing
