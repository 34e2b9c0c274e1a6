#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/MatchScore.h"

namespace tessarin {
namespace {

struct ScoreCase {
  std::string query;
  std::string trigger;
  std::vector<std::string> keywords;
  int score;
};

void PrintTo(const ScoreCase& c, std::ostream* out) {
  *out << c.query << " in " << c.trigger.substr(0, 40);
}

class MatchScore : public ::testing::TestWithParam<ScoreCase> {};

TEST_P(MatchScore, FollowsTheTiers) {
  EXPECT_EQ(matchScore(GetParam().query, GetParam().trigger, GetParam().keywords), GetParam().score);
}

const std::string longTrigger(1099, 'a');

INSTANTIATE_TEST_SUITE_P(
    Tiers, MatchScore,
    ::testing::Values(ScoreCase{"sm", "sm", {}, 10000}, ScoreCase{"sm", "smile", {}, 1095},
                      ScoreCase{"sm", "slightly_smiling", {}, 584},
                      ScoreCase{"sm", "grin", {"smile", "happy"}, 495}, ScoreCase{"sm", "cosmos", {}, 194},
                      ScoreCase{"sm", "wave", {"hello"}, 0}, ScoreCase{"sm", "wave", {"sm"}, 800},
                      ScoreCase{"sm", "wave", {"cosmos"}, 144}, ScoreCase{"", "wave", {"sm"}, 0},
                      ScoreCase{"", "", {}, 0}));

INSTANTIATE_TEST_SUITE_P(TriggerBeforeKeywords, MatchScore,
                         ::testing::Values(ScoreCase{"sm", "cosmos", {"sm"}, 194},
                                           ScoreCase{"sm", "wave", {"cosmos", "sm"}, 144},
                                           ScoreCase{"sm", "wave", {"x", "sma", "sm"}, 497}));

INSTANTIATE_TEST_SUITE_P(Segments, MatchScore,
                         ::testing::Values(ScoreCase{"b", "a_b", {}, 597}, ScoreCase{"b", "a_bc", {}, 596},
                                           ScoreCase{"a_b", "a_bc", {}, 1096},
                                           ScoreCase{"b_c", "a_b_c", {}, 195},
                                           ScoreCase{"b", "a__b", {}, 596}, ScoreCase{"_", "a__b", {}, 196},
                                           ScoreCase{"_", "_a", {}, 1098}, ScoreCase{"a", "_a", {}, 598},
                                           ScoreCase{"_b", "a__b", {}, 196},
                                           ScoreCase{"b", "a_\u0308b", {}, 197}));

INSTANTIATE_TEST_SUITE_P(
    Letters, MatchScore,
    ::testing::Values(ScoreCase{"SM", "smile", {}, 1095}, ScoreCase{"sm", "SMILE", {}, 1095},
                      ScoreCase{"\u00e9", "e\u0301tude", {}, 1095},
                      ScoreCase{"e\u0301", "\u00e9tude", {}, 1095}, ScoreCase{"e", "e\u0301tud", {}, 0},
                      ScoreCase{"e", "\u00e9tude", {}, 195}, ScoreCase{"E\u0301", "\u00e9", {}, 10000},
                      ScoreCase{"\u1e9e", "\u00df", {}, 10000}, ScoreCase{"\u0130", "i\u0307", {}, 10000},
                      ScoreCase{"i", "\u0130", {}, 0}, ScoreCase{"\u03a3", "\u03c3", {}, 10000},
                      ScoreCase{"ss", "\u00df", {}, 0}, ScoreCase{"x", "wave", {"xe\u0301e\u0301"}, 497}));

INSTANTIATE_TEST_SUITE_P(Long, MatchScore,
                         ::testing::Values(ScoreCase{"a", longTrigger, {}, 1},
                                           ScoreCase{"a", longTrigger + "a", {}, 0},
                                           ScoreCase{"a", longTrigger + "aa", {"a"}, -1},
                                           ScoreCase{"b", std::string(198, 'a') + "b", {}, 1}));

}  // namespace
}  // namespace tessarin
