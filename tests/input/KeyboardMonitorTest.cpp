#include <chrono>

#include "Matchers.h"
#include "input/KeyboardMonitor.h"
#include "platform/KeyCodes.h"
#include "support/FakeAccessibility.h"
#include "support/FakeEventTap.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"

namespace tessarin::testing {
namespace {

using namespace std::chrono_literals;

class KeyboardMonitorTest : public ::testing::Test {
 protected:
  KeyboardMonitorTest() {
    monitor->onKeyEvent = [this](const auto& characters, std::int64_t, std::uint64_t) {
      heard.push_back(characters);
      if (whileJudging) whileJudging();
    };
    monitor->onInterrupted = [this] { ++interruptions; };
    monitor->setAttention(KeyAttention::triggerOnly, ":");
  }

  LogRecorder log;
  FakeEventTap tap;
  FakeAccessibility accessibility;
  ManualMainQueue queue;
  std::unique_ptr<KeyboardMonitor> monitor = std::make_unique<KeyboardMonitor>(tap, accessibility, queue);
  std::vector<std::optional<std::string>> heard;
  std::function<void()> whileJudging;
  int interruptions = 0;
};

TEST_F(KeyboardMonitorTest, SwallowsThePopupsKeysWhileItIsShown) {
  ASSERT_TRUE(monitor->start());
  const auto isSwallowed = [&](const char* symbol, bool isShown, bool hasPicker) {
    monitor->isIntercepting = isShown;
    monitor->shouldConsumeArrows = hasPicker;
    return tap.press(keyStream(symbol).front()) == KeyVerdict::swallow;
  };
  for (const std::string symbol : {"⏎", "⇥", "⎋", "↑", "↓", "←", "→", "a", ":", "⌫"}) {
    const bool isSideways = symbol == "←" || symbol == "→";
    const bool isOthers = symbol == "a" || symbol == ":" || symbol == "⌫";
    heard.clear();
    EXPECT_EQ(isSwallowed(symbol.c_str(), true, true), !isOthers) << symbol;
    EXPECT_EQ(isSwallowed(symbol.c_str(), true, false), !isOthers && !isSideways) << symbol;
    EXPECT_FALSE(isSwallowed(symbol.c_str(), false, true)) << symbol;
    EXPECT_EQ(heard.size(), 3u) << "the owner hears of every key";
  }
}

TEST_F(KeyboardMonitorTest, SwallowsWhatTheOwnerTakesUpOrLetsGoMeanwhile) {
  monitor->start();
  monitor->isIntercepting = true;
  whileJudging = [&] { monitor->shouldConsumeArrows = true; };
  EXPECT_EQ(tap.press(key(keycode::right)), KeyVerdict::swallow);
  whileJudging = [&] { monitor->isIntercepting = false; };
  EXPECT_EQ(tap.press(key(keycode::returnKey, "\r")), KeyVerdict::swallow);
  EXPECT_EQ(tap.press(key(keycode::returnKey, "\r")), KeyVerdict::pass);
}

TEST_F(KeyboardMonitorTest, PassesModifierChangesUnheardAndBeginsTheBudgetOfEachKey) {
  monitor->start();
  monitor->isIntercepting = true;
  KeyEvent event = keyStream("⏎").front();
  event.budget = 70ms;
  event.kind = KeyEventKind::flagsChanged;
  EXPECT_EQ(tap.press(event), KeyVerdict::pass);
  EXPECT_THAT(heard, IsEmpty());
  event.kind = KeyEventKind::keyDown;
  whileJudging = [&] { EXPECT_EQ(accessibility.budgets.back(), 70ms); };
  tap.press(event);
  EXPECT_THAT(heard, SizeIs(1));
}

TEST_F(KeyboardMonitorTest, ADisabledTapIsEnabledAndReported) {
  monitor->start();
  for (const auto kind : {KeyEventKind::disabledByTimeout, KeyEventKind::disabledByUserInput}) {
    tap.disable(kind);
    EXPECT_TRUE(tap.isOn);
  }
  EXPECT_EQ(interruptions, 2);
  EXPECT_THAT(heard, IsEmpty());
  tap.isOn = false;
  queue.advance(5000ms);
  EXPECT_TRUE(tap.isOn) << "though nobody said so";
  EXPECT_EQ(interruptions, 3);
  queue.advance(20s);
  EXPECT_EQ(interruptions, 3) << "nothing more while the tap is on";
}

TEST_F(KeyboardMonitorTest, TellsTheTapOnceTheKeyIsJudged) {
  monitor->start();
  whileJudging = [&] {
    monitor->setAttention(KeyAttention::holdBack, ":");
    EXPECT_EQ(tap.attention(), KeyAttention::triggerOnly);
    monitor->setAttention(KeyAttention::everyKey, ":");
  };
  tap.press(letter("a"));
  EXPECT_THAT(tap.attentions, ElementsAre(KeyAttention::triggerOnly, KeyAttention::everyKey));
}

}  // namespace
}  // namespace tessarin::testing
