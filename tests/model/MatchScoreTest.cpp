#include <gtest/gtest.h>

#include "model/MatchScore.h"

namespace tessarin::testing {
namespace {

TEST(MatchScore, FollowsTheTiers) {
  const std::string longTrigger(1099, 'a');
  const struct {
    std::string query;
    std::string trigger;
    std::vector<std::string> keywords;
    int score;
  } cases[] = {
      {"sm", "sm", {}, 10000},
      {"sm", "smile", {}, 1095},
      {"sm", "slightly_smiling", {}, 584},
      {"sm", "grin", {"smile", "happy"}, 495},
      {"sm", "wave", {"sm"}, 800},
      {"", "wave", {"sm"}, 0},
      // Segments
      {"b", "a_b", {}, 597},
      {"a_b", "a_bc", {}, 1096},
      {"b", "a__b", {}, 596},
      // Letters
      {"\u00e9", "e\u0301tude", {}, 1095},
      {"e", "e\u0301tud", {}, 0},
      {"\u1e9e", "\u00df", {}, 10000},
      {"x", "wave", {"xe\u0301e\u0301"}, 497},
      // Long ones
      {"a", longTrigger, {}, 1},
      {"a", longTrigger + "aa", {"a"}, -1},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(matchScore(c.query, c.trigger, c.keywords), c.score)
        << c.query << " in " << c.trigger.substr(0, 40);
  }
}

}  // namespace
}  // namespace tessarin::testing
