#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "main/SessionInputMonitoring.h"
#include "platform/OwnAddresses.h"
#include "support/FakeWorkspace.h"

namespace tessarin::testing {
namespace {

using ::testing::ElementsAre;

TEST(SessionInputMonitoring, ExplainsOnRequestOnlyWhatIsMissing) {
  KeyTapState state = KeyTapState::usable;
  int shown = 0;
  SessionInputMonitoring monitoring([&] { return state; }, [&](const Explanation&) { ++shown; });
  EXPECT_TRUE(monitoring.isGranted());
  monitoring.request();
  EXPECT_EQ(shown, 0);
  state = KeyTapState::noServer;
  EXPECT_FALSE(monitoring.isGranted()) << "asked afresh";
  monitoring.request();
  EXPECT_EQ(shown, 1);
}

TEST(OwnAddresses, AnswersItsOwnAndPassesOnAllElse) {
  FakeWorkspace desktop;
  int opened = 0;
  OwnAddresses workspace(desktop, {{"tessarin:settings/page", [&] { ++opened; }}});
  workspace.openUrl("tessarin:settings/page");
  EXPECT_EQ(opened, 1);
  workspace.openUrl("https://example.org/");
  workspace.openUrl("tessarin:settings");
  EXPECT_EQ(opened, 1);
  EXPECT_THAT(desktop.openedUrls, ElementsAre("https://example.org/", "tessarin:settings"));
  int changes = 0;
  const auto observer = workspace.onContextChanged([&] { ++changes; });
  desktop.activate("org.example.Editor");
  EXPECT_EQ(workspace.frontmostApplication(), desktop.frontmost);
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace tessarin::testing
