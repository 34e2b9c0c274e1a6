// Launch, retry and shutdown of the controller.

#include <chrono>

#include "Matchers.h"
#include "app/TestApp.h"

namespace tessarin::testing {
namespace {

using namespace std::chrono_literals;

constexpr const char* started = "[Tessarin] Keyboard monitor started successfully";
constexpr const char* failed =
    "[Tessarin] Keyboard monitor failed to start — will retry when permission is granted";

class LaunchTest : public ::testing::Test {
 protected:
  void launch() {
    app.create();
    app.log.clear();
    app.app->applicationDidFinishLaunching();
  }
  TestApp app;
};

TEST_F(LaunchTest, ShowsTheTrayItemAndStartsTheMonitorAfterOneSecond) {
  launch();
  EXPECT_TRUE(app.statusBar.visible);
  app.queue.advance(999ms);
  EXPECT_EQ(app.tap.creations, 0);
  app.queue.advance(1ms);
  EXPECT_TRUE(app.tap.isOn);
  EXPECT_EQ(app.tap.attention(), KeyAttention::triggerOnly);
  EXPECT_EQ(app.tap.trigger(), ":");
  EXPECT_EQ(app.log.lines().back(), started);
}

TEST_F(LaunchTest, LearnsTheUsersLanguagesAfterTheStartAndBeforeTheFirstKey) {
  std::filesystem::create_directory(app.folder / "emoji-words");
  app.folder.write("emoji-words/de.txt", "Lächeln\tfroh\n\n\n\n\n");
  app.languages = {"de"};
  launch();
  EXPECT_THAT(app.log.lines(), Not(Contains(HasSubstr("emoji words"))));
  app.queue.advance(1s);
  app.type(":froh");
  EXPECT_EQ(app.popup.presented.back().rows.at(0).name, "Lächeln");
  app.type("⏎");
  EXPECT_EQ(app.timesUsed("smile"), 1);
}

TEST_F(LaunchTest, RetriesEveryThreeSecondsOnceTrusted) {
  app.accessibility.trusted = false;
  launch();
  app.queue.advance(1s);
  EXPECT_EQ(app.accessibility.prompts, 2) << "at launch and by the first start";
  EXPECT_EQ(app.accessibility.lastPrompt, PromptManner::unobtrusive);
  app.queue.advance(9s);
  EXPECT_EQ(app.accessibility.prompts, 2) << "a tick without trust does nothing";
  EXPECT_THAT(app.log.lines(), Contains(failed).Times(1));
  app.accessibility.trusted = true;
  app.queue.advance(2999ms);
  EXPECT_FALSE(app.tap.isOn);
  app.queue.advance(1ms);
  EXPECT_TRUE(app.tap.isOn);
  EXPECT_EQ(app.log.lines().back(), started);
  app.tap.destroy();
  app.queue.advance(30s);
  EXPECT_THAT(app.log.lines(), Contains(started).Times(1)) << "the retrying has ended";
  EXPECT_EQ(app.tap.creations, 1);
}

TEST_F(LaunchTest, RetriesWhileThereIsNoTapUntilShutdown) {
  app.tap.isUsable = false;
  launch();
  app.queue.advance(7s);
  EXPECT_EQ(app.tap.creations, 3);
  EXPECT_THAT(app.log.lines(), Contains(failed).Times(3));
  app.app->applicationWillTerminate();
  app.queue.advance(10s);
  EXPECT_EQ(app.tap.creations, 3);
}

TEST_F(LaunchTest, GoesByTheTrustAsItIsNow) {
  app.launch();
  for (const bool isInserting : {false, true}) {
    app.insertion.finishesAtOnce = !isInserting;
    app.type(isInserting ? ":smile⏎" : ":smile");
    app.accessibility.trusted = false;
    app.app->followTrust();
    EXPECT_EQ(app.app->hasFollowedTrust(), !isInserting);
    EXPECT_FALSE(app.popup.visible);
    EXPECT_EQ(app.query(), std::nullopt);
    EXPECT_EQ(app.tap.exists, isInserting) << "what is half inserted may be finished";
    app.type(":w");
    app.queue.advance(1s);
    EXPECT_FALSE(app.tap.exists);
    EXPECT_EQ(app.insertion.underWay(), 0U);
    app.queue.advance(30s);
    EXPECT_FALSE(app.tap.exists);
    EXPECT_TRUE(app.statusBar.item("  Accessibility: ✗ (optional)"));
    app.accessibility.trusted = true;
    app.app->followTrust();
    EXPECT_TRUE(app.tap.isOn) << "at once";
    EXPECT_TRUE(app.statusBar.item("  Accessibility: ✓"));
  }
  EXPECT_EQ(app.document.text, ":smile:w:smile:w");
  EXPECT_EQ(app.accessibility.prompts, 0) << "who takes it back is not asked for it";
}

}  // namespace
}  // namespace tessarin::testing
