#include <gtest/gtest.h>

#include <random>

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

class SearchIndexComparison : public ::testing::TestWithParam<unsigned> {
 protected:
  void append() {
    plain_.snippets.push_back(generator_.next());
    index_.append(plain_.snippets.back());
  }

  void change() {
    const std::size_t kind = generator_.below(10);
    if (kind < 3 || plain_.snippets.empty()) return append();
    const std::size_t at = generator_.below(plain_.snippets.size());
    if (kind < 5) {
      plain_.snippets[at] = generator_.next();
      index_.replace(at, plain_.snippets[at]);
    } else if (kind < 7) {
      plain_.snippets.erase(plain_.snippets.begin() + static_cast<std::ptrdiff_t>(at));
      index_.remove(at);
    } else {
      const std::string trigger = generator_.below(5) == 0 ? generator_.text(3) : plain_.snippets[at].trigger;
      const auto count = static_cast<std::int64_t>(generator_.below(14)) - 1;
      plain_.counts[trigger] = count;
      index_.setUsageCount(trigger, count);
    }
  }

  Generator generator_{GetParam()};
  PlainSearch plain_;
  SearchIndex index_;
};

TEST_P(SearchIndexComparison, AnswersAsThePlainPassDoes) {
  const std::size_t sizes[] = {5, 90, 300, 900};
  const std::size_t limits[] = {0, 1, 3, 8, 8, 8, 8, 64, 1000};
  for (std::size_t n = sizes[GetParam() % 4]; n > 0; --n) append();
  for (int round = 0; round < 150; ++round) {
    for (unsigned changes = round % 3 == 0 ? GetParam() % 7 : 0; changes > 0; --changes) change();
    const std::string query = generator_.text(generator_.below(3) == 0 ? 6 : 2);
    const std::size_t limit = limits[generator_.below(std::size(limits))];
    ASSERT_EQ(index_.search(query, limit), plain_.search(query, limit))
        << "query " << query << ", limit " << limit;
    ASSERT_EQ(index_.size(), plain_.snippets.size());
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, SearchIndexComparison, ::testing::Range(1U, 13U));

}  // namespace
}  // namespace tessarin::testing
