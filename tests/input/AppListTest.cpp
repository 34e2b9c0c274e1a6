
#include "Matchers.h"
#include "input/AppList.h"
#include "support/FakeUserDefaults.h"

namespace tessarin::testing {
namespace {

class AppListTest : public ::testing::Test {
 protected:
  AppList load() { return AppList(defaults, "apps", {"b", "D"}); }

  FakeUserDefaults defaults;
};

TEST_F(AppListTest, LoadingJoinsTheBuiltInOnesAndSorts) {
  using Apps = std::vector<std::string>;
  EXPECT_THAT(load().entries(), ElementsAre("D", "b"));
  // "é" in two characters sorts as the one that it is equivalent to, between "z" and "ê".
  defaults.set("apps", Apps{"\u00ea", "B", "b", "c", "c", "e\u0301", "z"});
  defaults.writes.clear();
  EXPECT_THAT(load().entries(), ElementsAre("B", "D", "b", "c", "z", "e\u0301", "\u00ea"));
  EXPECT_TRUE(defaults.writes.empty()) << "loading stores nothing";
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
}  // namespace tessarin::testing
