#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "input/Preferences.h"
#include "support/CaseName.h"
#include "support/FakeUserDefaults.h"

namespace tessarin::testing {
namespace {

using ::testing::IsSupersetOf;
using ::testing::SizeIs;

using Apps = std::vector<std::string>;

struct TriggerCase {
  const char* name;
  std::optional<std::string> stored;
  std::string trigger;
};

class TriggerPreference : public ::testing::TestWithParam<TriggerCase> {};

TEST_P(TriggerPreference, IsRead) {
  FakeUserDefaults defaults;
  if (GetParam().stored) defaults.set(preferences::key::triggerCharacter, *GetParam().stored);
  EXPECT_EQ(preferences::currentTriggerCharacter(defaults), GetParam().trigger);
}

const TriggerCase triggerCases[] = {
    {"Absent", std::nullopt, ":"}, {"Empty", "", ":"},
    {"Choice", ";", ";"},          {"AnyCharacterAtAll", "é", "é"},
    {"FirstOfTwo", "/;", "/"},     {"FirstCharacterNotFirstScalar", "e\u0301x", "e\u0301"},
};
INSTANTIATE_TEST_SUITE_P(Stored, TriggerPreference, ::testing::ValuesIn(triggerCases), CaseName());

TEST(Preferences, BuiltInApplicationsAreAlwaysListed) {
  FakeUserDefaults defaults;
  EXPECT_THAT(preferences::effectiveBlockedApps(defaults), SizeIs(2));
  EXPECT_THAT(preferences::effectivePasteFallbackApps(defaults), SizeIs(16));
  defaults.set(preferences::key::blacklistedApps, Apps{"org.example.Chat"});
  EXPECT_THAT(preferences::effectiveBlockedApps(defaults),
              IsSupersetOf({"com.apple.MobileSMS", "com.tinyspeck.slackmacgap", "org.example.Chat"}));
  EXPECT_TRUE(preferences::isBlockedApp(defaults, "com.apple.MobileSMS"));
  EXPECT_TRUE(preferences::isPasteFallbackApp(defaults, "net.kovidgoyal.kitty"));
}

TEST(Preferences, StoredApplicationsAreComparedExactly) {
  FakeUserDefaults defaults;
  defaults.set(preferences::key::blacklistedApps, Apps{"org.example.Chat"});
  defaults.set(preferences::key::pasteFallbackApps, Apps{"org.example.Shell"});
  EXPECT_TRUE(preferences::isBlockedApp(defaults, "org.example.Chat"));
  EXPECT_FALSE(preferences::isBlockedApp(defaults, "org.example.chat"));
  EXPECT_FALSE(preferences::isBlockedApp(defaults, "com.apple.mobilesms"));
  EXPECT_FALSE(preferences::isBlockedApp(defaults, "org.example.Shell"));
  EXPECT_TRUE(preferences::isPasteFallbackApp(defaults, "org.example.Shell"));
}

}  // namespace
}  // namespace tessarin::testing
