#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "Matchers.h"
#include "support/FakeDesktop.h"
#include "support/FakeUserDefaults.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/ManualWallClock.h"
#include "update/AppcastSource.h"
#include "update/SparkleUpdaterService.h"
#include "update/UpdateUserDriver.h"
#include "update/Updater.h"
#include "update/UpdaterDelegate.h"

namespace tessarin::testing {
namespace {

using std::chrono::hours;
using std::chrono::minutes;

/// A server that answers when the test says so.
class FakeAppcastSource final : public AppcastSource {
 public:
  Subscription fetch(const std::string& address, std::function<void(Result)> done) override {
    addresses.push_back(address);
    done_ = std::move(done);
    return Subscription([this] { done_ = nullptr; });
  }
  bool isRunning() const { return static_cast<bool>(done_); }
  void answer(Result result) {
    const auto done = done_;
    ASSERT_TRUE(done) << "nobody asks";
    done(std::move(result));
  }

  std::vector<std::string> addresses;

 private:
  std::function<void(Result)> done_;
};

/// Writes down what the user is shown and answers for the user.
class FakeUpdateUserDriver final : public UpdateUserDriver {
 public:
  void showChecking(std::function<void()> cancelled) override {
    shown.emplace_back("checking");
    cancel = std::move(cancelled);
  }
  void showUpdate(const AppcastItem& item, const std::string& currentVersion, Manner manner,
                  std::function<void(UpdateChoice)> chosen) override {
    shown.push_back("update " + item.displayVersion() + " for " + currentVersion +
                    (manner == Manner::unobtrusive ? " unobtrusively" : ""));
    choose = std::move(chosen);
  }
  void showUpToDate(const std::string& currentVersion) override {
    shown.push_back("up to date at " + currentVersion);
  }
  void showFailure(UpdateFailure failure) override {
    shown.push_back("failure " + std::to_string(static_cast<int>(failure)));
  }
  void focus() override { shown.emplace_back("focus"); }
  void dismiss() override { shown.emplace_back("nothing"); }

  std::vector<std::string> shown;
  std::function<void()> cancel;
  std::function<void(UpdateChoice)> choose;
};

/// A feed of one release a version, each with an address to download it from.
std::string feedOf(const std::vector<std::string>& versions) {
  std::string items;
  for (const std::string& version : versions) {
    items += "<item><x:version>" + version + "</x:version><enclosure url='https://example.org/" + version +
             ".tar'/></item>";
  }
  return "<rss xmlns:x='urn:example'><channel>" + items + "</channel></rss>";
}

class RecordingDelegate final : public UpdaterDelegate {
 public:
  std::string feedUrl() const override { return "https://example.org/feed"; }
  void didFindValidUpdate(const AppcastItem& item) override { told.push_back("found " + item.version); }
  void didNotFindUpdate(std::optional<UpdateFailure> failure) override {
    told.push_back(failure ? "failed " + std::to_string(static_cast<int>(*failure)) : "none");
  }
  void didFinishLoadingAppcast(const Appcast& appcast) override {
    told.push_back("loaded " + std::to_string(appcast.items.size()));
  }
  std::vector<std::string> told;
};

struct UpdateWorld : ::testing::Test {
  FakeUserDefaults defaults;
  ManualMainQueue queue;
  ManualWallClock clock;
  FakeWorkspace workspace;
  FakeAppcastSource source;
  FakeUpdateUserDriver user;
  UpdaterSeams seams{defaults, queue, clock, workspace, source, user};
};

class Updating : public UpdateWorld {
 protected:
  Updating() { start(); }
  void start() { updater.emplace(seams, delegate, Installation{"1.2", "", "6.1"}); }
  /// The user asks, and the feed holds the versions.
  void check(const std::vector<std::string>& versions) {
    updater->checkForUpdates();
    answer(versions);
  }
  void answer(const std::vector<std::string>& versions) { source.answer(feedOf(versions)); }
  /// Time passes for the clocks alike, in steps of a minute.
  void pass(minutes time) {
    for (; time > minutes(0); time -= minutes(1)) {
      clock.time += minutes(1);
      queue.advance(minutes(1));
    }
  }
  void startAutomatic() {
    start();
    updater->setAutomaticallyChecksForUpdates(true);
  }
  /// A check that was due runs and finds the versions.
  void runAutomatic(const std::vector<std::string>& versions) {
    pass(minutes(60));
    ASSERT_TRUE(source.isRunning());
    answer(versions);
  }

  RecordingDelegate delegate;
  std::optional<Updater> updater;
};

TEST_F(Updating, OffersANewerVersionAndLeadsToIt) {
  check({"1.2", "1.3"});
  EXPECT_THAT(source.addresses, ElementsAre("https://example.org/feed"));
  EXPECT_THAT(user.shown, ElementsAre("checking", "update 1.3 for 1.2"));
  EXPECT_THAT(delegate.told, ElementsAre("found 1.3", "loaded 2"));
  user.choose(UpdateChoice::download);
  EXPECT_THAT(workspace.openedUrls, ElementsAre("https://example.org/1.3.tar"));
}

TEST_F(Updating, SaysWhyItFailed) {
  const LogRecorder log;
  updater->checkForUpdates();
  source.answer(UpdateFailure::timedOut);
  updater->checkForUpdates();
  source.answer("<html/>");
  EXPECT_THAT(user.shown, ElementsAre("checking", "failure 2", "checking", "failure 8"));
  EXPECT_THAT(delegate.told, ElementsAre("failed 2", "failed 8"));
}

TEST_F(Updating, IsShownWhileItRunsAndEndsWhenTheUserCancelsOrInSilenceWithTheProgram) {
  updater->checkForUpdates();
  updater->checkForUpdates();
  EXPECT_EQ(source.addresses.size(), 1u);
  user.cancel();
  EXPECT_FALSE(source.isRunning());
  EXPECT_THAT(user.shown, ElementsAre("checking", "focus", "nothing"));
  EXPECT_THAT(std::exchange(delegate.told, {}), ElementsAre("failed 0"));
  user.shown.clear();
  updater->checkForUpdates();
  EXPECT_TRUE(source.isRunning());
  updater.reset();
  EXPECT_FALSE(source.isRunning());
  EXPECT_THAT(user.shown, ElementsAre("checking", "nothing"));
  EXPECT_THAT(delegate.told, IsEmpty());
}

TEST_F(Updating, ChecksOnceADayUnaskedWithOneTimer) {
  startAutomatic();
  queue.runReady();
  EXPECT_THAT(source.addresses, IsEmpty()) << "the program is starting";
  for (std::size_t day = 1; day <= 3; ++day) {
    pass(minutes(60));
    EXPECT_EQ(source.addresses.size(), day);
    answer({"1.2"});
    pass(hours(22));
    EXPECT_EQ(source.addresses.size(), day);
    EXPECT_LE(queue.pending(), 2u) << "the timer, and one that was replaced";
    pass(hours(1));
  }
  EXPECT_THAT(user.shown, IsEmpty());
}

TEST_F(Updating, CountsTheDayOverRestarts) {
  check({"1.2"});
  EXPECT_EQ(defaults.string("lastUpdateCheck"), "2026-03-14T09:30:00Z");
  pass(hours(10));
  startAutomatic();
  pass(hours(13));
  EXPECT_EQ(source.addresses.size(), 1u);
  pass(hours(2));
  EXPECT_EQ(source.addresses.size(), 2u);
}

TEST_F(Updating, ChecksNeitherNeverNorAllTheTimeWhateverTheClockDoes) {
  std::mt19937 random(1);
  const auto start = clock.time;
  startAutomatic();
  for (int round = 0; round < 100; ++round) {
    clock.time = start + hours(std::uniform_int_distribution(-24 * 365 * 40, 24 * 365 * 200)(random));
    const std::size_t before = source.addresses.size();
    for (int hour = 0; hour < 26; ++hour) {
      pass(minutes(60));
      if (source.isRunning()) answer({"1.2"});
    }
    EXPECT_GE(source.addresses.size(), before + 1) << round;
    EXPECT_LE(source.addresses.size(), before + 2) << round;
    EXPECT_LE(queue.pending(), 3u);
  }
}

TEST_F(Updating, ShowsNothingUnaskedButAnUpdateAndDownloadsNone) {
  startAutomatic();
  updater->setAutomaticallyDownloadsUpdates(true);
  pass(minutes(60));
  source.answer(UpdateFailure::noConnection);
  pass(hours(24));
  answer({"1.3"});
  EXPECT_THAT(user.shown, ElementsAre("update 1.3 for 1.2 unobtrusively"));
  EXPECT_THAT(workspace.openedUrls, IsEmpty());
  EXPECT_THAT(delegate.told, ElementsAre("failed 1", "found 1.3", "loaded 1"));
}

TEST_F(Updating, LeavesAnOfferAloneUntilTheUserHasChosen) {
  startAutomatic();
  runAutomatic({"1.3"});
  pass(hours(72));
  EXPECT_EQ(source.addresses.size(), 1u);
  user.choose(UpdateChoice::later);
  pass(hours(1));
  EXPECT_EQ(source.addresses.size(), 2u);
  answer({"1.3"});
  EXPECT_EQ(user.shown.size(), 2u) << "put off, not skipped";
}

TEST_F(Updating, PassesOverASkippedVersionUntilAsked) {
  check({"1.3"});
  user.choose(UpdateChoice::skip);
  EXPECT_THAT(workspace.openedUrls, IsEmpty());
  user.shown.clear();
  startAutomatic();
  pass(hours(24));
  runAutomatic({"1.3"});
  EXPECT_THAT(user.shown, IsEmpty());
  check({"1.3"});
  EXPECT_THAT(user.shown, ElementsAre("checking", "update 1.3 for 1.2"));
}

TEST_F(Updating, TurnsAnUnaskedCheckIntoOneThatTheUserSees) {
  startAutomatic();
  pass(minutes(60));
  updater->checkForUpdates();
  answer({"1.2"});
  EXPECT_THAT(user.shown, ElementsAre("checking", "up to date at 1.2"));
  EXPECT_THAT(delegate.told, ElementsAre("none", "loaded 1"));
  EXPECT_EQ(source.addresses.size(), 1u);
}

using Property = SparkleUpdaterService::Property;

class Service : public UpdateWorld {
 protected:
  SparkleUpdaterService& start(BuildSettings settings = {"1.2", "", "https://example.org/feed"}) {
    service.emplace(seams, std::move(settings));
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
}  // namespace
}  // namespace tessarin::testing
