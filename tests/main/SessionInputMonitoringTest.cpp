#include "Matchers.h"
#include "main/SessionInputMonitoring.h"
#include "platform/OwnAddresses.h"
#include "support/FakeInputMonitoring.h"
#include "support/FakeWorkspace.h"
#include "support/InputMonitoringSuite.h"

namespace tessarin::testing {
namespace {

class SessionWorld {
 public:
  InputMonitoring& monitoring() { return monitoring_; }
  void setUsable(bool isUsable) { state_ = isUsable ? KeyTapState::usable : KeyTapState::noServer; }
  int explanations() const { return explanations_; }

 private:
  KeyTapState state_ = KeyTapState::usable;
  int explanations_ = 0;
  SessionInputMonitoring monitoring_{[this] { return state_; },
                                     [this](const Explanation&) { ++explanations_; }};
};

class FakeWorld {
 public:
  InputMonitoring& monitoring() { return fake_; }
  void setUsable(bool isUsable) { fake_.granted = isUsable; }
  int explanations() const { return fake_.explanations; }

 private:
  FakeInputMonitoring fake_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Session, InputMonitoringSuite, ::testing::Types<SessionWorld>);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, InputMonitoringSuite, ::testing::Types<FakeWorld>);

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
