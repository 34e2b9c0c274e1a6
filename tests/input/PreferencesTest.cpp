#include "Matchers.h"
#include "input/AppList.h"
#include "input/Preferences.h"
#include "support/FakeUserDefaults.h"

namespace tessarin::testing {
namespace {

using Apps = std::vector<std::string>;

TEST(Preferences, TheTriggerIsTheFirstCharacterStored) {
  FakeUserDefaults defaults;
  EXPECT_EQ(preferences::currentTriggerCharacter(defaults), ":");
  for (const auto& [stored, trigger] : {std::pair{"", ":"}, {"/;", "/"}, {"e\u0301x", "e\u0301"}}) {
    defaults.set(preferences::key::triggerCharacter, stored);
    EXPECT_EQ(preferences::currentTriggerCharacter(defaults), trigger);
  }
}

TEST(Preferences, StoredApplicationsJoinTheBuiltInOnes) {
  FakeUserDefaults defaults;
  defaults.set(preferences::key::blacklistedApps, Apps{"org.example.Chat"});
  defaults.set(preferences::key::pasteFallbackApps, Apps{"org.example.Shell"});
  EXPECT_TRUE(preferences::isBlockedApp(defaults, "org.example.Chat"));
  EXPECT_TRUE(preferences::isPasteFallbackApp(defaults, "net.kovidgoyal.kitty"));
  EXPECT_TRUE(preferences::isPasteFallbackApp(defaults, "org.example.Shell"));
  for (const char* other : {"org.example.chat", "org.example.Shell"}) {
    EXPECT_FALSE(preferences::isBlockedApp(defaults, other)) << other;
  }
}

class AppListTest : public ::testing::Test {
 protected:
  AppList load() { return AppList(defaults, "apps", {"b", "D"}); }

  FakeUserDefaults defaults;
};

TEST_F(AppListTest, LoadingJoinsTheBuiltInOnesAndSorts) {
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
