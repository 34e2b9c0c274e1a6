#include <gtest/gtest.h>

#include <random>

#include "model/MatchScore.h"
#include "model/SearchIndex.h"
#include "support/PlainSearch.h"

namespace tessarin::testing {
namespace {

/// Texts of few letters, so that every tier, tie and overlap comes up.
class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  std::size_t below(std::size_t bound) { return random_() % bound; }

  std::string text(std::size_t most) {
    static const std::vector<std::string> letters = {
        "a", "a",      "b",       "b",      "a",      "_",      "_",      "A",      "B",
        "e", "\u00e9", "e\u0301", "\u0130", "\u1e9e", "\u03a3", "\u03c3", "\u03c2", "1",
        "-", "+",      "\u0301",  "\u0308", "\uac00", "\u11a8", "\r",     "\n"};
    const std::size_t kinds = below(3) == 0 ? letters.size() : 9;
    std::string result;
    for (std::size_t n = below(most) + 1; n > 0; --n) result += letters[below(kinds)];
    return result;
  }

  Snippet next() {
    const bool isLong = below(60) == 0;
    const std::string trigger = isLong ? text(5) + std::string(below(1200), 'a') + text(3) : text(9);
    return {"id_" + trigger, trigger, trigger, "x", keywords(), "Custom", false};
  }

 private:
  std::vector<std::string> keywords() {
    std::vector<std::string> words;
    for (std::size_t n = below(4); n > 0; --n) words.push_back(below(40) == 0 ? "" : text(8));
    return words;
  }

  std::mt19937 random_;
};

class SearchIndexComparison : public ::testing::TestWithParam<unsigned> {};

TEST_P(SearchIndexComparison, AnswersAsThePlainPassDoes) {
  Generator generator(GetParam());
  PlainSearch plain;
  SearchIndex index;
  const auto change = [&](std::size_t kind) {
    const std::size_t at = plain.snippets.empty() ? 0 : generator.below(plain.snippets.size());
    if (kind < 3 || plain.snippets.empty()) {
      plain.snippets.push_back(generator.next());
      index.append(plain.snippets.back());
    } else if (kind < 5) {
      plain.snippets[at] = generator.next();
      index.replace(at, plain.snippets[at]);
    } else if (kind < 7) {
      plain.snippets.erase(plain.snippets.begin() + static_cast<std::ptrdiff_t>(at));
      index.remove(at);
    } else {
      const std::string trigger = generator.below(5) == 0 ? generator.text(3) : plain.snippets[at].trigger;
      const auto count = static_cast<std::int64_t>(generator.below(14)) - 1;
      plain.counts[trigger] = count;
      index.setUsageCount(trigger, count);
    }
  };
  const std::size_t sizes[] = {5, 90, 300, 900};
  const std::size_t limits[] = {0, 1, 3, 8, 8, 8, 8, 64, 1000};
  for (std::size_t n = sizes[GetParam() % 4]; n > 0; --n) change(0);
  for (int round = 0; round < 150; ++round) {
    for (unsigned n = round % 3 == 0 ? GetParam() % 7 : 0; n > 0; --n) change(generator.below(10));
    const std::string query = generator.text(generator.below(3) == 0 ? 6 : 2);
    const std::size_t limit = limits[generator.below(std::size(limits))];
    ASSERT_EQ(index.search(query, limit), plain.search(query, limit)) << query << ", limit " << limit;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SearchIndexComparison, ::testing::Range(1U, 13U));

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
