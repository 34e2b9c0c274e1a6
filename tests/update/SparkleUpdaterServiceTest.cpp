
#include "Matchers.h"
#include "support/FakeUserDefaults.h"
#include "support/FakeWorkspace.h"
#include "support/ManualMainQueue.h"
#include "support/ManualWallClock.h"
#include "update/FakeUpdates.h"
#include "update/SparkleUpdaterService.h"

namespace tessarin::testing {
namespace {

using Property = SparkleUpdaterService::Property;

class Service : public ::testing::Test {
 protected:
  SparkleUpdaterService& start(BuildSettings settings = {"1.2", "", "https://example.org/feed"}) {
    service.emplace(UpdaterSeams{defaults, queue, clock, workspace, source, user}, std::move(settings));
    observation = service->onChange([this](Property property) { changes.push_back(describe(property)); });
    return *service;
  }
  std::string describe(Property property) const {
    switch (property) {
      case Property::isCheckingForUpdates:
        return service->isCheckingForUpdates() ? "checking" : "not checking";
      case Property::updateAvailable:
        return service->updateAvailable() ? "available" : "not available";
      case Property::updateInfo:
        break;
    }
    return service->updateInfo() ? "info " + service->updateInfo()->version : "no info";
  }

  FakeUserDefaults defaults;
  ManualMainQueue queue;
  ManualWallClock clock;
  FakeWorkspace workspace;
  FakeAppcastSource source;
  FakeUpdateUserDriver user;
  std::vector<std::string> changes;
  std::optional<SparkleUpdaterService> service;
  Subscription observation;
};

TEST_F(Service, ChecksUnaskedOnlyIfThePreferenceSaysSo) {
  EXPECT_FALSE(start().updaterController()->automaticallyChecksForUpdates());
  defaults.set("automaticallyChecksForUpdates", "true");
  EXPECT_FALSE(start().updaterController()->automaticallyChecksForUpdates()) << "no Boolean";
  defaults.set("automaticallyChecksForUpdates", true);
  EXPECT_TRUE(start().updaterController()->automaticallyChecksForUpdates());
}

TEST_F(Service, TellsOfAnUpdateBeforeTheCheckEndsAndForgetsOneThatIsNoLongerThere) {
  defaults.set("feedUrl", "https://elsewhere.example/");
  start().checkForUpdates();
  EXPECT_THAT(source.addresses, ElementsAre("https://example.org/feed")) << "no stored address";
  EXPECT_EQ(defaults.string("feedUrl"), "");
  source.answer(feedOf({"1.3"}));
  EXPECT_THAT(changes, ElementsAre("checking")) << "the rest comes later";
  queue.runReady();
  EXPECT_THAT(changes, ElementsAre("checking", "available", "info 1.3", "not checking", "not checking"));
  changes.clear();
  service->checkForUpdates();
  source.answer(UpdateFailure::noConnection);
  queue.runReady();
  EXPECT_THAT(changes, ElementsAre("checking", "not available", "no info", "not checking"));
}

TEST_F(Service, LeavesNothingBehind) {
  start().checkForUpdates();
  source.answer(feedOf({"1.3"}));
  service.reset();
  queue.advance(std::chrono::hours(48));
  EXPECT_THAT(changes, ElementsAre("checking"));
}

TEST_F(Service, DoesNothingWithoutAFeed) {
  defaults.set("automaticallyChecksForUpdates", true);
  start({"1.2", "", ""}).checkForUpdates();
  EXPECT_EQ(service->updaterController(), nullptr);
  EXPECT_EQ(queue.pending(), 0u);
  EXPECT_THAT(changes, IsEmpty());
  EXPECT_THAT(user.shown, IsEmpty());
}

TEST(BuildSettings, NameTheVersionAndASecureFeed) {
  EXPECT_FALSE(buildSettings().version.empty());
  const std::string feed = buildSettings().feedUrl;
  EXPECT_TRUE(feed.empty() || feed.starts_with("https://")) << feed;
}

}  // namespace
}  // namespace tessarin::testing
