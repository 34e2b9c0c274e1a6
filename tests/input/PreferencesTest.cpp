

#include "Matchers.h"
#include "input/Preferences.h"
#include "support/FakeUserDefaults.h"

namespace tessarin::testing {
namespace {

using ::testing::UnorderedElementsAre;
using Apps = std::vector<std::string>;

TEST(Preferences, TheTriggerIsTheFirstCharacterStored) {
  FakeUserDefaults defaults;
  EXPECT_EQ(preferences::currentTriggerCharacter(defaults), ":");
  for (const auto& [stored, trigger] :
       {std::pair{"", ":"}, {";", ";"}, {"é", "é"}, {"/;", "/"}, {"e\u0301x", "e\u0301"}}) {
    defaults.set(preferences::key::triggerCharacter, stored);
    EXPECT_EQ(preferences::currentTriggerCharacter(defaults), trigger);
  }
}

TEST(Preferences, StoredApplicationsJoinTheBuiltInOnes) {
  FakeUserDefaults defaults;
  defaults.set(preferences::key::blacklistedApps, Apps{"org.example.Chat"});
  defaults.set(preferences::key::pasteFallbackApps, Apps{"org.example.Shell"});
  EXPECT_THAT(preferences::effectiveBlockedApps(defaults),
              UnorderedElementsAre("com.apple.MobileSMS", "com.tinyspeck.slackmacgap", "org.example.Chat"));
  EXPECT_THAT(preferences::effectivePasteFallbackApps(defaults), SizeIs(17));
  EXPECT_TRUE(preferences::isBlockedApp(defaults, "org.example.Chat"));
  EXPECT_TRUE(preferences::isPasteFallbackApp(defaults, "net.kovidgoyal.kitty"));
  EXPECT_TRUE(preferences::isPasteFallbackApp(defaults, "org.example.Shell"));
  for (const char* other : {"org.example.chat", "org.example.Shell"}) {
    EXPECT_FALSE(preferences::isBlockedApp(defaults, other)) << other;
  }
}

}  // namespace
}  // namespace tessarin::testing
