#include <gmock/gmock.h>

#include "input/AppList.h"
#include "support/FakeUserDefaults.h"

namespace tessarin {
namespace {

using ::testing::ElementsAre;

class AppListTest : public ::testing::Test {
 protected:
  AppList load() { return AppList(defaults, "apps", {"b", "D"}); }

  testing::FakeUserDefaults defaults;
};

TEST_F(AppListTest, LoadingJoinsTheBuiltInOnesAndSorts) {
  using Apps = std::vector<std::string>;
  const struct {
    Apps stored;
    Apps entries;
  } cases[] = {
      {{}, {"D", "b"}},
      {{"b", "c", "c"}, {"D", "b", "c"}},
      {{"B", "d"}, {"B", "D", "b", "d"}},
      // "é" in two characters sorts as the one that it is equivalent to, between "z" and "ê".
      {{"\u00ea", "e\u0301", "z", "ez"}, {"D", "b", "ez", "z", "e\u0301", "\u00ea"}},
      // As scalar values: U+FF5E is below U+1F600, whose first UTF-16 unit is the smaller one.
      {{"\U0001F600", "\uFF5E"}, {"D", "b", "\uFF5E", "\U0001F600"}},
  };
  for (const auto& [stored, entries] : cases) {
    defaults.set("apps", stored);
    defaults.writes.clear();
    EXPECT_EQ(load().entries(), entries);
    EXPECT_TRUE(defaults.writes.empty()) << "loading stores nothing";
  }
  defaults.set("apps", "a value of another type");
  EXPECT_THAT(load().entries(), ElementsAre("D", "b"));
}

TEST_F(AppListTest, StoresTheWholeSortedListAtEachChange) {
  AppList list = load();
  list.add("C");
  list.add("c");
  EXPECT_THAT(*defaults.stringArray("apps"), ElementsAre("C", "D", "b", "c"));
  EXPECT_EQ(list.entries(), *defaults.stringArray("apps"));
  list.add("b");
  EXPECT_EQ(defaults.writes.size(), 2U) << "a listed one is not added";
  list.remove("b");
  EXPECT_FALSE(list.contains("b"));
  EXPECT_THAT(*defaults.stringArray("apps"), ElementsAre("C", "D", "c"));
  EXPECT_TRUE(load().contains("b")) << "a built-in one comes back";
}

}  // namespace
}  // namespace tessarin
