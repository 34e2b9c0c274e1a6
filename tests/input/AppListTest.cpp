#include <gmock/gmock.h>

#include "input/AppList.h"
#include "support/CaseName.h"
#include "support/FakeUserDefaults.h"

namespace tessarin {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const preferences::AppSet builtIn = {"com.example.b", "com.example.D"};

class AppListTest : public ::testing::Test {
 protected:
  AppList load() { return AppList(defaults, "apps", builtIn); }
  std::vector<std::string> stored() const {
    return defaults.stringArray("apps").value_or(std::vector<std::string>());
  }
  testing::FakeUserDefaults defaults;
};

struct LoadCase {
  const char* name;
  std::vector<std::string> stored;
  std::vector<std::string> entries;
};

class AppListLoading : public AppListTest, public ::testing::WithParamInterface<LoadCase> {};

TEST_P(AppListLoading, joinsTheBuiltInOnesAndSorts) {
  defaults.set("apps", GetParam().stored);
  EXPECT_EQ(load().entries(), GetParam().entries);
  EXPECT_THAT(defaults.writes, ElementsAre("apps")) << "loading stores nothing";
}

INSTANTIATE_TEST_SUITE_P(
    Stored, AppListLoading,
    ::testing::Values(
        LoadCase{"nothing", {}, {"com.example.D", "com.example.b"}},
        LoadCase{"eachOnce",
                 {"com.example.b", "com.example.c", "com.example.c"},
                 {"com.example.D", "com.example.b", "com.example.c"}},
        LoadCase{"caseMakesAnother",
                 {"com.example.B", "com.example.d"},
                 {"com.example.B", "com.example.D", "com.example.b", "com.example.d"}},
        // "é" in two characters sorts as the one that it is equivalent to, between "z" and "ê".
        LoadCase{"byNormalForm",
                 {"\u00ea", "e\u0301", "z", "ez"},
                 {"com.example.D", "com.example.b", "ez", "z", "e\u0301", "\u00ea"}},
        // As scalar values: U+FF5E is below U+1F600, whose first UTF-16 unit is the smaller one.
        LoadCase{"byScalarValue",
                 {"\U0001F600", "\uFF5E"},
                 {"com.example.D", "com.example.b", "\uFF5E", "\U0001F600"}}),
    testing::CaseName());

TEST_F(AppListTest, readsAValueOfAnotherTypeAsEmpty) {
  defaults.set("apps", "com.example.c");
  EXPECT_THAT(load().entries(), ElementsAre("com.example.D", "com.example.b"));
}

TEST_F(AppListTest, storesTheWholeSortedListAtEachAddition) {
  AppList list = load();
  list.add("com.example.c");
  EXPECT_THAT(stored(), ElementsAre("com.example.D", "com.example.b", "com.example.c"));
  list.add("com.example.C");
  EXPECT_THAT(stored(), ElementsAre("com.example.C", "com.example.D", "com.example.b", "com.example.c"));
  EXPECT_EQ(list.entries(), stored());
}

TEST_F(AppListTest, addingAListedOneStoresNothing) {
  load().add("com.example.b");
  EXPECT_THAT(defaults.writes, IsEmpty());
}

TEST_F(AppListTest, aBuiltInOneIsGoneUntilTheListIsLoadedAgain) {
  AppList list = load();
  list.remove("com.example.b");
  EXPECT_FALSE(list.contains("com.example.b"));
  EXPECT_THAT(stored(), ElementsAre("com.example.D"));
  EXPECT_TRUE(load().contains("com.example.b"));
}

}  // namespace
}  // namespace tessarin
