#include <atomic>

#include "TapFixture.h"
#include "base/Log.h"
#include "platform/x11/KeyQuestion.h"
#include "support/Eventually.h"

namespace tessarin::testing {
namespace {

using namespace std::chrono_literals;

class X11EventTapTimeOutTest : public TapFixture {
 protected:
  X11EventTapTimeOutTest() { answerTime = x11::KeyQuestion::answerTime; }
  /// Waits for the document while the main thread does nothing else.
  bool comesBy(const std::string& expected, std::chrono::milliseconds time) {
    const auto deadline = queue.now() + time;
    while (document->text() != expected) {
      if (queue.now() > deadline) return false;
    }
    return true;
  }
};

TEST_F(X11EventTapTimeOutTest, LetsTheKeyByAndNeverJudgesItLater) {
  start();
  const auto before = queue.now();
  typist->type(":ab\n:cd\n:ef\n:");
  EXPECT_TRUE(comesBy(":ab\n:cd\n:ef\n:", 5s));
  EXPECT_GE(queue.now() - before, x11::KeyQuestion::answerTime);
  EXPECT_FALSE(tap->isEnabled());
  EXPECT_TRUE(queue.runUntil([this] { return timeOuts == 2; }))
      << "only the first two triggers are waited for";
  EXPECT_TRUE(seen.empty());
  EXPECT_TRUE(tap->isEnabled());
  document->clear();
  EXPECT_TRUE(queue.runUntil([this] {
    if (!seen.empty()) return true;
    typist->type("a:");
    typist->sync();
    return false;
  }));
}

// A line of the log may wait for whoever reads it.
TEST_F(X11EventTapTimeOutTest, WritesNoLineWhileAKeyIsHeld) {
  watcher.clear();  // it would free the key
  start();
  std::atomic<bool> hasCome = false;
  std::atomic<int> wasInTime = -1;
  const LogCapture log(
      [&](const std::string&) { wasInTime = eventually([&] { return hasCome.load(); }, [] {}, 5s) ? 1 : 0; });
  typist->type(":");
  EXPECT_TRUE(comesBy(":", 20s));
  hasCome = true;
  EXPECT_TRUE(queue.runUntil([&] { return wasInTime >= 0; }));
  EXPECT_EQ(wasInTime, 1);
}

TEST_F(X11EventTapTimeOutTest, WaitsForAnAnswerThatIsNear) {
  start();
  onKey = [this](const KeyEvent& event) {
    EXPECT_GT(event.budget, 0ms);
    EXPECT_LE(event.budget, x11::KeyQuestion::answerTime);
    const auto until = queue.now() + x11::KeyQuestion::answerTime + 1ms;
    while (queue.now() < until) document->text();
  };
  typist->type(":");
  ASSERT_TRUE(queue.runUntil([this] { return seen.size() == 1; }));
  EXPECT_EQ(timeOuts, 0);
  EXPECT_TRUE(tap->isEnabled());
  onKey = {};
  typist->type("a\nb");
  expectDocument("😀b");
}

TEST_F(X11EventTapTimeOutTest, TellsAHandlerThatItsKeyWasLetBy) {
  start();
  std::vector<bool> swallowed;
  onKey = [&](const KeyEvent& event) {
    if (event.text != u"\r") return;
    EXPECT_TRUE(comesBy(":a\n", 5s));
    swallowed.push_back(event.commitSwallow());
  };
  typist->type(":a\n");
  ASSERT_TRUE(queue.runUntil([this] { return timeOuts == 1; }));
  EXPECT_EQ(swallowed, std::vector<bool>{false});
}

TEST_F(X11EventTapTimeOutTest, DoesNotWaitForAHandlerThatHasSettledTheKey) {
  start();
  onKey = [this](const KeyEvent& event) {
    if (event.text != u"\r") return;
    attend(KeyAttention::holdBack);
    EXPECT_TRUE(event.commitSwallow());
    typist->type("b");
    EXPECT_FALSE(comesBy(":ab", 2 * x11::KeyQuestion::answerTime)) << "the next key overtook the handler";
  };
  typist->type(":a\n");
  expectDocument("😀b");
  EXPECT_EQ(timeOuts, 0);
}

TEST_F(X11EventTapTimeOutTest, AShortHangCostsTheShortcodeInHandAndNothingElse) {
  start();
  // A main thread that is busy elsewhere, and one that is busy with the key: away until the next trigger
  // waits.
  typist->type(":ab\nx:cd\ny");
  ASSERT_TRUE(queue.runUntil([this] { return seen.size() == 2; }));
  EXPECT_TRUE(comesBy(":ab\nx", 5s));
  expectDocument(":ab\nx😀y");
  document->clear();
  onKey = [this](const KeyEvent& event) { EXPECT_TRUE(event.text != u"b" || comesBy(":ab\nx", 5s)); };
  typist->type(":ab\nx:cd\ny");
  expectDocument(":ab\nx😀y");
  EXPECT_EQ(timeOuts, 2);
}

TEST_F(X11EventTapTimeOutTest, PassesKeptKeysOnWhenTheMainThreadHangs) {
  start();
  holdBack();
  typist->type("x:ab\n");
  settle(50ms);
  EXPECT_EQ(document->text(), "");
  attend(KeyAttention::triggerOnly);
  EXPECT_TRUE(comesBy("x:ab\n", 5s));
  EXPECT_TRUE(seen.empty());
}

TEST_F(X11EventTapTimeOutTest, GivesTheKeyboardBackWhenAnInsertionNeverEnds) {
  start();
  holdBack();
  typist->type("x:ab\nC");
  queue.runUntil([this] { return timeOuts == 1; });
  EXPECT_EQ(timeOuts, 1);
  ASSERT_TRUE(queue.runUntil([this] { return document->text().ends_with('C'); }));
}

TEST(KeyQuestion, IsDecidedByWhoeverComesFirst) {
  x11::KeyQuestion givenUp;
  givenUp.cancel();
  EXPECT_EQ(givenUp.await(), std::nullopt);
  EXPECT_EQ(givenUp.claim(), std::nullopt);

  x11::KeyQuestion late(0ms);
  EXPECT_EQ(late.claim(), std::nullopt) << "as after a stop of the whole process";

  x11::KeyQuestion answered;
  EXPECT_GT(answered.claim().value_or(0ms), 0ms);
  answered.answer(KeyVerdict::swallow);
  answered.cancel();
  EXPECT_EQ(answered.await(), KeyVerdict::swallow);
  EXPECT_FALSE(answered.commitSwallow());

  x11::KeyQuestion committed;
  committed.claim();
  EXPECT_TRUE(committed.commitSwallow());
  EXPECT_EQ(committed.await(), KeyVerdict::swallow) << "though no answer has come";
}

}  // namespace
}  // namespace tessarin::testing
