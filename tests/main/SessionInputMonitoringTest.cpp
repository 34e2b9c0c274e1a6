#include "Matchers.h"
#include "main/SessionInputMonitoring.h"
#include "platform/OwnAddresses.h"
#include "support/FakeDesktop.h"

namespace tessarin::testing {
namespace {

TEST(SessionInputMonitoring, IsAskedAfreshAndExplainsOnlyWhatIsMissing) {
  KeyTapState state = KeyTapState::usable;
  int explanations = 0;
  SessionInputMonitoring monitoring([&] { return state; }, [&](const Explanation&) { ++explanations; });
  for (const int expected : {0, 1, 1, 2}) {
    EXPECT_EQ(monitoring.isGranted(), state == KeyTapState::usable);
    monitoring.request();
    EXPECT_EQ(explanations, expected);
    state = state == KeyTapState::usable ? KeyTapState::noServer : KeyTapState::usable;
  }
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
}

}  // namespace
}  // namespace tessarin::testing
