#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "input/Preferences.h"
#include "input/TriggerDetector.h"
#include "platform/KeyCodes.h"
#include "support/CaseName.h"
#include "support/FakeUserDefaults.h"
#include "support/KeyStream.h"
#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

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

struct StreamCase {
  const char* name;
  std::vector<KeyEvent> keys;
  Events events;
  TriggerDetector::State state;
};

std::vector<KeyEvent> after(std::string_view before, KeyEvent last) {
  std::vector<KeyEvent> keys = keyStream(before);
  keys.push_back(std::move(last));
  return keys;
}

const TriggerDetector::State idle = TriggerDetector::Idle{};
TriggerDetector::State collecting(std::string query) {
  return TriggerDetector::Accumulating{std::move(query)};
}

class TriggerDetectorStreams : public ::testing::TestWithParam<StreamCase> {};

TEST_P(TriggerDetectorStreams, FireTheirCallbacks) {
  const FakeUserDefaults defaults;
  Recorder recorder(defaults);
  recorder.press(GetParam().keys);
  EXPECT_THAT(recorder.events, ElementsAreArray(GetParam().events));
  EXPECT_EQ(recorder.detector.state(), GetParam().state);
}

const StreamCase confirmations[] = {
    {"ReturnConfirms", keyStream(":smile⏎"), {"~", "~s", "~sm", "~smi", "~smil", "~smile", "!smile"}, idle},
    {"TabConfirms", keyStream(":a⇥"), {"~", "~a", "!a"}, idle},
    {"TriggerConfirms", keyStream(":a:"), {"~", "~a", "!a"}, idle},
    {"ReturnWithoutQueryCancels", keyStream(":⏎"), {"~", "x"}, idle},
    {"TriggerTwiceCancels", keyStream("::"), {"~", "x"}, idle},
    {"TriggerThriceStartsAnew", keyStream(":::"), {"~", "x", "~"}, collecting("")},
};
INSTANTIATE_TEST_SUITE_P(Confirming, TriggerDetectorStreams, ::testing::ValuesIn(confirmations), CaseName());

const StreamCase corrections[] = {
    {"DeleteShortens", keyStream(":ab⌫⌫⌫"), {"~", "~a", "~ab", "~a", "~", "x"}, idle},
    {"DeleteTakesAWholeCharacter",
     after(":ae\u0301", key(keycode::deleteBackward, "\b")),
     {"~", "~a", "~ae\u0301", "~a"},
     collecting("a")},
    {"CombiningMarkJoinsTheLetter",
     {letter(":"), letter("e"), letter("\u0301"), key(keycode::deleteBackward)},
     {"~", "~e", "~e\u0301", "~"},
     collecting("")},
    {"UpAndDownChangeNothing", keyStream(":a↑↓"), {"~", "~a"}, collecting("a")},
};
INSTANTIATE_TEST_SUITE_P(Correcting, TriggerDetectorStreams, ::testing::ValuesIn(corrections), CaseName());

const StreamCase ends[] = {
    {"Escape", keyStream(":a⎋"), {"~", "~a", "x"}, idle},
    {"Space", keyStream(":a "), {"~", "~a", "x"}, idle},
    {"SpaceThatProducesALetter", after(":a", key(keycode::space, "b")), {"~", "~a", "x"}, idle},
    {"FullStop", keyStream(":a."), {"~", "~a", "x"}, idle},
    {"NoText", after(":a", key(keycode::other)), {"~", "~a", "x"}, idle},
    {"TwoCharacters", after(":a", letter("bc")), {"~", "~a", "x"}, idle},
    {"Left", keyStream(":a←"), {"~", "~a", "x"}, idle},
    {"Right", keyStream(":a→"), {"~", "~a", "x"}, idle},
    {"PrivateUse", after(":a", key(keycode::right, "\uF703")), {"~", "~a", "x"}, idle},
    {"ControlCharacter", after(":a", letter("\x01")), {"~", "~a", "x"}, idle},
    {"ForwardDelete", after(":a", key(keycode::forwardDelete, "\x7f")), {"~", "~a", "x"}, idle},
    {"Command", after(":a", letter("a", keyflag::command)), {"~", "~a", "x"}, idle},
    {"Control", after(":a", letter("a", keyflag::control)), {"~", "~a", "x"}, idle},
    {"Option", after(":a", letter("a", keyflag::option)), {"~", "~a", "x"}, idle},
    {"ReturnWithControl",
     after(":a", key(keycode::returnKey, "\r", keyflag::control)),
     {"~", "~a", "x"},
     idle},
};
INSTANTIATE_TEST_SUITE_P(Cancelling, TriggerDetectorStreams, ::testing::ValuesIn(ends), CaseName());

const StreamCase alphabet[] = {
    {"SignsOfShortcodes", keyStream(":_-+"), {"~", "~_", "~_-", "~_-+"}, collecting("_-+")},
    {"ForeignLettersAndDigits",
     keyStream(":éßЖ٣7"),
     {"~", "~é", "~éß", "~éßЖ", "~éßЖ٣", "~éßЖ٣7"},
     collecting("éßЖ٣7")},
    {"Capitals", after(":", letter("A", keyflag::shift)), {"~", "~A"}, collecting("A")},
    {"CapsLock", after(":", letter("A", keyflag::capsLock)), {"~", "~A"}, collecting("A")},
};
INSTANTIATE_TEST_SUITE_P(Extending, TriggerDetectorStreams, ::testing::ValuesIn(alphabet), CaseName());

const StreamCase quiet[] = {
    {"Letters", keyStream("abc⏎⌫⎋"), {}, idle},
    {"TriggerWithCommand", {letter(":", keyflag::command)}, {}, idle},
    {"TriggerWithControl", {letter(":", keyflag::control)}, {}, idle},
    {"TriggerWithOption", {letter(":", keyflag::option)}, {}, idle},
    {"NoText", {key(keycode::other)}, {}, idle},
    {"TwoTriggersInOneKey", {letter("::")}, {}, idle},
    {"OtherTriggers", keyStream(";/"), {}, idle},
};
INSTANTIATE_TEST_SUITE_P(Idle, TriggerDetectorStreams, ::testing::ValuesIn(quiet), CaseName());

class TriggerDetectorTest : public ::testing::Test {
 protected:
  FakeUserDefaults defaults;
  Recorder recorder{defaults};
};

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

TEST_F(TriggerDetectorTest, ACallbackMayAbandonTheQuery) {
  recorder.detector.onQueryChanged = [&](const std::string&) {
    recorder.detector.setState(TriggerDetector::Idle{});
  };
  recorder.press(keyStream(":"));
  EXPECT_EQ(recorder.detector.state(), idle);
}

}  // namespace
}  // namespace tessarin::testing
