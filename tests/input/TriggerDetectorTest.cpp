#include "Matchers.h"
#include "input/Preferences.h"
#include "input/TriggerDetector.h"
#include "platform/KeyCodes.h"
#include "support/FakeEventTap.h"
#include "support/FakeUserDefaults.h"
#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

using Events = std::vector<std::string>;

/// A detector that writes down what it is told: "~q" for a query, "!q" for a confirmation, "x" for a cancel.
class Recorder {
 public:
  explicit Recorder(const UserDefaults& defaults) : detector(defaults) {
    detector.onQueryChanged = [this](const std::string& query) { events.push_back("~" + query); };
    detector.onConfirm = [this](const std::string& query) { end("!" + query); };
    detector.onCancel = [this] { end("x"); };
  }

  void press(const KeyEvent& event) {
    const std::string produced = text::fromUtf16(event.text);
    detector.handleKey(produced.empty() ? std::nullopt : std::optional(produced), event.keyCode, event.flags);
  }
  void press(const std::vector<KeyEvent>& keys) {
    for (const KeyEvent& event : keys) press(event);
  }

  TriggerDetector detector;
  Events events;

 private:
  void end(std::string event) {
    EXPECT_FALSE(detector.isAccumulating()) << "the state changes before the callback";
    events.push_back(std::move(event));
  }
};

class TriggerDetectorTest : public ::testing::Test {
 protected:
  FakeUserDefaults defaults;
  Recorder recorder{defaults};
};

const TriggerDetector::State idle = TriggerDetector::Idle{};
TriggerDetector::State collecting(std::string query) {
  return TriggerDetector::Accumulating{std::move(query)};
}

TEST(TriggerDetector, FollowsWhatIsTyped) {
  const struct {
    std::vector<KeyEvent> keys;
    Events events;
  } cases[] = {
      // Confirming
      {keyStream(":sm⏎"), {"~", "~s", "~sm", "!sm"}},
      {keyStream(":a:"), {"~", "~a", "!a"}},
      {keyStream(":⏎"), {"~", "x"}},
      {keyStream(":::"), {"~", "x", "~"}},
      // Correcting
      {keyStream(":ab⌫⌫⌫"), {"~", "~a", "~ab", "~a", "~", "x"}},
      {{letter(":"), letter("e"), letter("\u0301"), keyStream("⌫")[0]}, {"~", "~e", "~e\u0301", "~"}},
      // Extending
      {keyStream(":_-+"), {"~", "~_", "~_-", "~_-+"}},
      {keyStream(":éЖ٣7"), {"~", "~é", "~éЖ", "~éЖ٣", "~éЖ٣7"}},
      {{letter(":"), letter("A", keyflag::shift), letter("B", keyflag::capsLock)}, {"~", "~A", "~AB"}},
      // Idle
      {{key(keycode::other), letter("::")}, {}},
      {{letter(":", keyflag::command), letter(":", keyflag::control), letter(":", keyflag::option)}, {}},
  };
  for (const auto& c : cases) {
    const FakeUserDefaults defaults;
    Recorder recorder(defaults);
    recorder.press(c.keys);
    SCOPED_TRACE(&c - cases);
    EXPECT_EQ(recorder.events, c.events);
    const bool isCollecting = !c.events.empty() && c.events.back().starts_with('~');
    EXPECT_EQ(recorder.detector.state(), isCollecting ? collecting(c.events.back().substr(1)) : idle);
  }
}

TEST_F(TriggerDetectorTest, CancelsAtWhatIsNoPartOfAShortcode) {
  const KeyEvent ends[] = {key(keycode::escape, "\x1b"),
                           key(keycode::space, "b"),
                           letter("."),
                           key(keycode::other),
                           key(keycode::right, "\uF703"),
                           letter("a", keyflag::command),
                           key(keycode::returnKey, "\r", keyflag::control)};
  for (const KeyEvent& end : ends) {
    recorder.press(keyStream(":a"));
    recorder.press(end);
    EXPECT_THAT(std::exchange(recorder.events, {}), ElementsAre("~", "~a", "x")) << &end - ends;
  }
}

TEST_F(TriggerDetectorTest, DropsTheSixtyFifthLetter) {
  const std::string full(64, 'a');
  recorder.press(keyStream(":" + full));
  EXPECT_EQ(recorder.events.size(), 65u);
  recorder.press(keyStream("bé"));
  EXPECT_EQ(recorder.events.size(), 65u);
  EXPECT_EQ(recorder.detector.state(), collecting(full));
  recorder.press(keyStream("⌫"));
  EXPECT_EQ(recorder.events.back(), "~" + full.substr(1));
}

TEST_F(TriggerDetectorTest, FollowsThePreferenceFromTheNextKeyOn) {
  recorder.press(keyStream(":a"));
  defaults.set(preferences::key::triggerCharacter, "/");
  recorder.press(keyStream("/"));
  EXPECT_THAT(recorder.events, ElementsAre("~", "~a", "!a"));
  recorder.press(keyStream(":"));
  EXPECT_EQ(recorder.detector.state(), idle);
  recorder.press(keyStream("/"));
  EXPECT_EQ(recorder.detector.state(), collecting(""));
}

}  // namespace
}  // namespace tessarin::testing
