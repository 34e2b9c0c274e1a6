#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "input/Preferences.h"
#include "input/TriggerDetector.h"
#include "platform/KeyCodes.h"
#include "support/FakeUserDefaults.h"
#include "support/KeyStream.h"
#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

using ::testing::ElementsAre;
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

const TriggerDetector::State idle = TriggerDetector::Idle{};
TriggerDetector::State collecting(std::string query) {
  return TriggerDetector::Accumulating{std::move(query)};
}

TEST(TriggerDetector, FollowsWhatIsTyped) {
  const struct {
    std::vector<KeyEvent> keys;
    Events events;
    TriggerDetector::State state;
  } cases[] = {
      // Confirming
      {keyStream(":sm⏎"), {"~", "~s", "~sm", "!sm"}, idle},
      {keyStream(":a⇥"), {"~", "~a", "!a"}, idle},
      {keyStream(":a:"), {"~", "~a", "!a"}, idle},
      {keyStream(":⏎"), {"~", "x"}, idle},
      {keyStream(":::"), {"~", "x", "~"}, collecting("")},
      // Correcting
      {keyStream(":ab⌫⌫⌫"), {"~", "~a", "~ab", "~a", "~", "x"}, idle},
      {{letter(":"), letter("e"), letter("\u0301"), key(keycode::deleteBackward)},
       {"~", "~e", "~e\u0301", "~"},
       collecting("")},
      {keyStream(":a↑↓"), {"~", "~a"}, collecting("a")},
      // Extending
      {keyStream(":_-+éЖ٣7"),
       {"~", "~_", "~_-", "~_-+", "~_-+é", "~_-+éЖ", "~_-+éЖ٣", "~_-+éЖ٣7"},
       collecting("_-+éЖ٣7")},

      // Idle
      {keyStream("abc;/⏎⌫⎋"), {}, idle},
      {{key(keycode::other), letter("::")}, {}, idle},
      {{letter(":", keyflag::command), letter(":", keyflag::control), letter(":", keyflag::option)},
       {},
       idle},
  };
  for (const auto& c : cases) {
    const FakeUserDefaults defaults;
    Recorder recorder(defaults);
    recorder.press(c.keys);
    SCOPED_TRACE(&c - cases);
    EXPECT_EQ(recorder.events, c.events);
    EXPECT_EQ(recorder.detector.state(), c.state);
  }
}

TEST(TriggerDetector, CancelsAtWhatIsNoPartOfAShortcode) {
  const KeyEvent ends[] = {
      key(keycode::escape, "\x1b"),
      key(keycode::space, "b"),
      letter("."),
      key(keycode::other),
      letter("bc"),
      key(keycode::right, "\uF703"),
      key(keycode::forwardDelete, "\x7f"),
      letter("a", keyflag::command),
      key(keycode::returnKey, "\r", keyflag::control),
  };
  for (const KeyEvent& end : ends) {
    const FakeUserDefaults defaults;
    Recorder recorder(defaults);
    recorder.press(keyStream(":a"));
    recorder.press(end);
    EXPECT_THAT(recorder.events, ElementsAre("~", "~a", "x")) << &end - ends;
  }
}

TEST(TriggerDetector, DropsTheSixtyFifthLetter) {
  const FakeUserDefaults defaults;
  Recorder recorder(defaults);
  const std::string full(64, 'a');
  recorder.press(keyStream(":" + full));
  EXPECT_EQ(recorder.events.size(), 65u);
  recorder.press(keyStream("bé"));
  EXPECT_EQ(recorder.events.size(), 65u);
  EXPECT_EQ(recorder.detector.state(), collecting(full));
  recorder.press(keyStream("⌫"));
  EXPECT_EQ(recorder.events.back(), "~" + full.substr(1));
}

}  // namespace
}  // namespace tessarin::testing
