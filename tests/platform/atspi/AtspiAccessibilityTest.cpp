#include <limits>

#include "platform/atspi/AtspiAccessibility.h"
#include "platform/atspi/FakeApplication.h"
#include "platform/atspi/Roles.h"
#include "support/Eventually.h"
#include "support/FocusedElement.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/desktop/PrivateSession.h"

namespace tessarin::testing {
namespace {

using atspi::AtspiAccessibility;
namespace busRole = atspi::busRole;
namespace busState = atspi::busState;
using Clock = std::chrono::steady_clock;

/// Longer than the user's, so that a busy machine does not spoil what is not about time.
constexpr std::chrono::milliseconds longestCall{400};
/// What a busy machine may add to a deadline.
constexpr std::chrono::milliseconds tolerance{60};

AtspiAccessibility::Options optionsFor(const PrivateSession& session) {
  AtspiAccessibility::Options options;
  options.sessionBusAddress = session.busAddress();
  options.ownProcess = 0;
  options.longestCall = longestCall;
  return options;
}

class AtspiAccessibilityTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { session = std::make_unique<PrivateSession>(); }
  static void TearDownTestSuite() { session.reset(); }

  AtspiAccessibilityTest() { openAccessibility(0); }

  /// The application runs in our own process, so a test says whose windows are passed over.
  void openAccessibility(std::uint32_t ownProcess) {
    AtspiAccessibility::Options options = optionsFor(*session);
    options.isTrusted = [] { return true; };
    options.activeProcess = [this] { return activeProcess; };
    options.isInBackground = [this](std::uint32_t process) { return process == processInBackground; };
    options.coordinateSpace = [] { return CoordinateSpace(2, 500); };
    options.activeWindowFrame = [this] { return windowFrame; };
    options.ownProcess = ownProcess;
    accessibility = std::make_unique<AtspiAccessibility>(queue, options);
  }

  void openApplication(const char* toolkit = "Fake") {
    application = std::make_unique<FakeApplication>(session->accessibilityBusAddress());
    application->answer("ToolkitName", property(toolkit));
    field = focus(FakeApplication::fieldPath);
  }

  ElementRef focusedElement() { return testing::focusedElement(*accessibility); }

  std::string focusedPath() {
    const ElementRef element = focusedElement();
    return element ? dynamic_cast<const atspi::AtspiElement&>(*element).object().path : "";
  }

  /// Events that came before our listening are lost, so they are told again.
  ElementRef focus(const char* path) {
    const bool hasFocus = eventually([&] {
      application->announceWindow("Activate");
      application->announceFocus(path, true);
      return focusedPath() == path;
    });
    return hasFocus ? focusedElement() : nullptr;
  }

  std::optional<AttributeValue> read(std::string_view name) { return accessibility->attribute(field, name); }
  std::optional<AttributeValue> read(std::string_view name, const TextRange& range) {
    return accessibility->parameterizedAttribute(field, name, range);
  }
  AccessibilityStatus replace(const TextRange& range, const std::string& text) {
    EXPECT_EQ(accessibility->setAttribute(field, attribute::selectedTextRange, range),
              AccessibilityStatus::success);
    return accessibility->setAttribute(field, attribute::selectedText, text);
  }

  void countMoves() {
    queue.runReady();
    subscription = accessibility->onFocusMoved([this] { ++moves; });
  }
  void announceFocusedField() {
    application->announceWindow("Activate");
    application->announceFocus(FakeApplication::fieldPath, true);
    queue.runReady();
  }
  bool becomesFocused(const std::string& path) {
    return eventually([&] { return focusedPath() == path; });
  }

  static std::unique_ptr<PrivateSession> session;
  const std::uint32_t ours = static_cast<std::uint32_t>(getpid());
  LogRecorder log;
  ManualMainQueue queue;
  std::optional<std::uint32_t> activeProcess;
  std::optional<Rect> windowFrame;
  std::optional<std::uint32_t> processInBackground;
  std::unique_ptr<AtspiAccessibility> accessibility;
  std::unique_ptr<FakeApplication> application;
  ElementRef field;
  int moves = 0;
  Subscription subscription;
};

std::unique_ptr<PrivateSession> AtspiAccessibilityTest::session;

TEST_F(AtspiAccessibilityTest, namesRoles) {
  struct Case {
    std::uint32_t role;
    const char* tag;
    std::string_view name;
  };
  const Case cases[] = {
      {busRole::passwordText, "", role::secureTextField}, {busRole::terminal, "", role::terminal},
      {busRole::documentWeb, "", role::webArea},          {busRole::entry, "", role::textField},
      {busRole::entry, "input", role::htmlTextInput},     {busRole::text, "textarea", role::htmlTextArea},
      {busRole::paragraph, "div", role::textField},       {12345, "input", role::unknown},
  };
  openApplication();
  for (const Case& expected : cases) {
    SCOPED_TRACE(expected.name);
    accessibility->beginBudget(longestCall);
    application->answer("GetRole", value(expected.role));
    application->answer("GetAttributes", onlyAttribute("tag", expected.tag));
    EXPECT_EQ(read(attribute::role), AttributeValue(std::string(expected.name)));
  }
}

TEST_F(AtspiAccessibilityTest, believesNoGarbage) {
  constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
  constexpr auto caret = attribute::selectedTextRange;
  constexpr auto text = attribute::stringForRange;
  constexpr auto place = attribute::boundsForRange;
  /// A call or property that is answered in its own way, and what is asked for then.
  const struct {
    const char* name;
    const char* member;
    Answer answer;
    std::string_view attribute;
    std::optional<TextRange> range = {};
  } cases[] = {
      {"negative caret", "CaretOffset", property(-1), caret},
      {"caret is a string", "CaretOffset", property("ten"), caret},
      {"empty role", "GetRole", [](auto*, auto*) {}, attribute::role},
      {"parent has no address", "Parent", parent("not a name", "/x"), attribute::parent},
      {"parent is none", "Parent", parent(":1.1", atspi::nullPath), attribute::parent},
      {"less text", "GetText", value("abc"), text, TextRange{4, 6}},
      {"huge text", "GetText", value(std::string(8 << 20, 'x')), text, TextRange{4, 6}},
      {"range of negative length", "", nullptr, text, TextRange{10, -3}},
      {"range beyond all", "", nullptr, text, TextRange{std::int64_t{1} << 40, 6}},
      {"very long range", "", nullptr, text, TextRange{0, 1 << 20}},
      {"bounds nowhere", "GetCharacterExtents", bounds({least, least, 5, 10}), place, TextRange{1, 0}},
      {"bounds of no height", "GetCharacterExtents", bounds({1, 1, 5, 0}), place, TextRange{1, 0}},
      {"value of a terminal", "GetRole", value(busRole::terminal), attribute::value},
      {"value of read-only text", "GetState", states(busState::visible | busState::focused),
       attribute::value},
      {"value without a caret", "CaretOffset", property(-1), attribute::value},
      {"value without a role", "GetRole", nullptr, attribute::value},
      {"value without states", "GetState", value("all of them"), attribute::value},
  };
  for (const auto& spoilt : cases) {
    SCOPED_TRACE(spoilt.name);
    openApplication();
    application->answer(spoilt.member, spoilt.answer);
    EXPECT_FALSE(spoilt.range ? read(spoilt.attribute, *spoilt.range) : read(spoilt.attribute));
    application.reset();
  }
}

TEST_F(AtspiAccessibilityTest, remembersWhatTheFocusedElementLiesInUntilTheFocusMoves) {
  openApplication();
  const auto window = readAttribute<ElementRef>(*accessibility, field, attribute::parent);
  ASSERT_TRUE(window);
  const auto askTwice = [&](const ElementRef& element, std::string_view name, const char* call) {
    const int before = application->calls(call);
    for (int key = 0; key < 2; ++key) {
      accessibility->beginBudget(longestCall);
      EXPECT_TRUE(accessibility->attribute(element, name));
    }
    return application->calls(call) - before;
  };
  EXPECT_EQ(askTwice(field, attribute::parent, "Parent"), 0) << "known already";
  EXPECT_EQ(askTwice(*window, attribute::role, "GetRole"), 1);
  EXPECT_EQ(askTwice(field, attribute::role, "GetRole"), 2) << "a password may be shown and hidden";
  countMoves();
  focus(FakeApplication::otherFieldPath);
  EXPECT_EQ(askTwice(*window, attribute::role, "GetRole"), 1);
  queue.runReady();
  EXPECT_EQ(moves, 1);
}

TEST_F(AtspiAccessibilityTest, findsTheCaretsRectangleInPoints) {
  openApplication();
  application->answer("GetCharacterExtents", bounds({100, 50, 12, 20}));
  EXPECT_EQ(read(attribute::boundsForRange, {3, 0}), AttributeValue(Rect{50, 25, 0.5, 10}));
  // No rectangle where there is no character: the caret stands behind the one before.
  application->answer("GetCharacterExtents", bounds({100, 50, 12, 20}, 9));
  EXPECT_EQ(read(attribute::boundsForRange, {10, 0}), AttributeValue(Rect{56, 25, 0.5, 10}));
  application->setText(U"one line\n", 9);
  application->answer("GetCharacterExtents", bounds({100, 50, 12, 20}, 8));
  application->answer("GetExtents", extents({30, 40, 300, 200}));
  EXPECT_EQ(read(attribute::boundsForRange, {9, 0}), AttributeValue(Rect{15, 35, 0.5, 10}))
      << "at the start of the next line";
  EXPECT_EQ(read(attribute::position), AttributeValue(Point{15, 20}));
  EXPECT_EQ(read(attribute::size), AttributeValue(Size{150, 100}));
}

TEST_F(AtspiAccessibilityTest, scalesWhatTheToolkitScales) {
  struct Case {
    const char* name;
    Rect frame;  ///< of the window on the screen, pixels
    Rect caret;  ///< points: the tests' screen has two pixels a point
  };
  const Case cases[] = {
      {"twice as large as the toolkit says", {200, 100, 800, 600}, {100, 50, 1, 20}},
      {"half as large again, with a title above", {200, 100, 600, 420}, {75, 37.5, 0.75, 15}},
      {"the same size", {200, 100, 400, 300}, {50, 25, 0.5, 10}},
      {"another window", {200, 100, 1000, 300}, {50, 25, 0.5, 10}},
  };
  for (const auto& [name, frame, caret] : cases) {
    SCOPED_TRACE(name);
    windowFrame = frame;
    openApplication();
    application->answer("GetExtents", extents({7, 9, 400, 300}));
    application->answer("GetCharacterExtents", bounds({100, 50, 12, 20}));
    EXPECT_EQ(read(attribute::boundsForRange, {3, 0}), AttributeValue(caret));
    application.reset();
  }

  windowFrame = Rect{200, 100, 800, 600};
  openApplication();
  application->answer("GetCharacterExtents", bounds({100, 50, 12, 20}));
  application->hold("GetExtents");
  EXPECT_FALSE(read(attribute::boundsForRange, {3, 0})) << "of unknown scale";
  application->answer("GetExtents", extents({0, 0, 1, 1}));
  application->release();
  EXPECT_TRUE(eventually([this] { return read(attribute::boundsForRange, {3, 0}).has_value(); }));
  application->answer("GetExtents", extents({7, 9, 400, 300}));
  EXPECT_EQ(read(attribute::boundsForRange, {3, 0}), AttributeValue(Rect{100, 50, 1, 20}))
      << "the window was only coming up";
}

TEST_F(AtspiAccessibilityTest, saysExactlyWhatAReplacementDid) {
  struct Case {
    const char* name;
    std::function<void(FakeApplication&)> spoil;
    AccessibilityStatus status;
  };
  const auto deniesIt = [](FakeApplication& a) {
    a.answer("DeleteText", [&a](DBusMessage* call, DBusMessageIter* reply) {
      a.answer("GetText", value("é😀 ñ"));
      value(false)(call, reply);
    });
  };
  const auto refused = [](const char* call) { return [call](auto& a) { a.answer(call, value(false)); }; };
  const auto unknown = [](const char* call) { return [call](auto& a) { a.refuse(call); }; };
  const auto held = [](const char* call) { return [call](auto& a) { a.hold(call); }; };
  const Case cases[] = {
      {"deleting is refused", refused("DeleteText"), AccessibilityStatus::failure},
      {"deletes and denies it", deniesIt, AccessibilityStatus::erasedOnly},
      {"deleting is not answered", held("DeleteText"), AccessibilityStatus::erasedOnly},
      {"inserting is refused", refused("InsertText"), AccessibilityStatus::erasedOnly},
      {"reading is refused", unknown("GetText"), AccessibilityStatus::failure},
      {"inserting is not answered", held("InsertText"), AccessibilityStatus::success},
  };
  for (const Case& spoilt : cases) {
    SCOPED_TRACE(spoilt.name);
    openApplication();
    spoilt.spoil(*application);
    EXPECT_EQ(replace({4, 6}, "😀"), spoilt.status);
    if (spoilt.status == AccessibilityStatus::success) {
      application->release();
      EXPECT_TRUE(eventually([this] { return application->text() == U"é😀 ñ😀"; })) << "carried out once";
    }
    application.reset();
  }
}

TEST_F(AtspiAccessibilityTest, erasesAndInsertsAtOneGo) {
  const auto refuseOnce = [](FakeApplication& a) {
    a.answer("DeleteText", [&a](DBusMessage* call, DBusMessageIter* reply) {
      a.answerAsUsual("DeleteText");
      value(false)(call, reply);
    });
  };
  const auto deniesIt = [](FakeApplication& a) {
    a.answer("DeleteText", [&a](DBusMessage* call, DBusMessageIter* reply) {
      a.setText(U"é😀 ñ", 4);
      value(false)(call, reply);
    });
  };
  struct Case {
    const char* name;
    std::function<void(FakeApplication&)> spoil;
    AccessibilityStatus status;
    std::u32string text;
  };
  const Case cases[] = {
      {"nothing spoilt", [](auto&) {}, AccessibilityStatus::success, U"é😀 ñ🎉"},
      {"erasing is refused", refuseOnce, AccessibilityStatus::failure, U"é😀 ñ:smile"},
      {"erases and denies it", deniesIt, AccessibilityStatus::success, U"é😀 ñ🎉"},
      {"inserting is refused", [](auto& a) { a.refuse("InsertText"); }, AccessibilityStatus::erasedOnly,
       U"é😀 ñ"},
      {"erasing is late", [](auto& a) { a.hold("DeleteText"); }, AccessibilityStatus::success, U"é😀 ñ🎉"},
      {"inserting is late", [](auto& a) { a.hold("InsertText"); }, AccessibilityStatus::success, U"é😀 ñ🎉"},
      {"hangs before all is asked", [](auto& a) { a.hold("GetText"); }, AccessibilityStatus::failure,
       U"é😀 ñ:smile"},
  };
  for (const Case& spoilt : cases) {
    SCOPED_TRACE(spoilt.name);
    openApplication("gtk");
    spoilt.spoil(*application);
    EXPECT_EQ(replace({4, 6}, "🎉"), spoilt.status);
    application->release();
    EXPECT_TRUE(eventually([&] { return application->text() == spoilt.text; }));
    application.reset();
  }
}

TEST_F(AtspiAccessibilityTest, putsTheCaretBehindTheTextOrInsertsNoMore) {
  using Status = AccessibilityStatus;
  const auto keeps = [](FakeApplication& a) { a.answer("SetCaretOffset", value(false)); };
  struct Case {
    const char* name;
    std::function<void(FakeApplication&)> spoil;
    Status statuses[2];  ///< of one replacement, and of a second one by an emoji
    std::u32string text;
    std::int32_t caret;
  };
  const Case cases[] = {
      {"leaves it", [](auto&) {}, {Status::success, Status::success}, U"é😀 ñ🎉🎉", 6},
      {"keeps it", keeps, {Status::erasedOnly, Status::failure}, U"é😀 ñ", 4},
      {"keeps it, and the text",
       [&](auto& a) {
         keeps(a);
         a.answer("GetText", value(":smile"));
       },
       {Status::success, Status::failure},
       U"é😀 ñ🎉",
       4},
      {"does not answer",
       [](auto& a) { a.hold("SetCaretOffset"); },
       {Status::success, Status::success},
       U"é😀 ñ🎉🎉",
       6},
  };
  for (const char* toolkit : {"gtk", "Fake"}) {
    for (const Case& tested : cases) {
      SCOPED_TRACE(std::string(toolkit) + " " + tested.name);
      openApplication(toolkit);
      application->leaveCaret();
      accessibility->beginBudget(std::chrono::seconds(5));
      EXPECT_TRUE(read(attribute::value));
      EXPECT_TRUE(read(attribute::stringForRange, {4, 6}));
      tested.spoil(*application);
      EXPECT_EQ(replace({4, 6}, "🎉"), tested.statuses[0]);
      application->release();
      EXPECT_TRUE(eventually([&] { return replace({application->caret(), 0}, "🎉") == tested.statuses[1]; }));
      EXPECT_EQ(application->text(), tested.text);
      EXPECT_EQ(application->caret(), tested.caret);
      application.reset();
    }
  }
}

TEST_F(AtspiAccessibilityTest, asksNothingTwiceForOneKey) {
  openApplication("gtk");
  accessibility->beginBudget(std::chrono::seconds(5));
  for (const auto name : {attribute::role, attribute::value, attribute::selectedTextRange}) {
    EXPECT_TRUE(read(name));
  }
  EXPECT_EQ(read(attribute::stringForRange, {4, 6}), AttributeValue(std::string(":smile")));
  const char* calls[] = {"GetRole", "GetState", "GetInterfaces", "CaretOffset", "GetText"};
  std::vector<int> before;
  for (const char* call : calls) before.push_back(application->calls(call));
  EXPECT_TRUE(read(attribute::value));
  EXPECT_EQ(replace({4, 6}, "🎉"), AccessibilityStatus::success);
  ++before[3];  // where the caret has come to, asked along with the change
  for (std::size_t i = 0; i < before.size(); ++i)
    EXPECT_EQ(application->calls(calls[i]), before[i]) << calls[i];

  EXPECT_TRUE(read(attribute::selectedTextRange));
  EXPECT_TRUE(read(attribute::value));
  EXPECT_EQ(application->calls("GetText"), before[4] + 1)
      << "along with the rest, as the caret is expected there";
  EXPECT_EQ(read(attribute::stringForRange, {4, 1}), AttributeValue(std::string("🎉")));
  EXPECT_EQ(application->calls("GetText"), before[4] + 1);
  application->setText(U"é", 1);
  EXPECT_EQ(read(attribute::selectedTextRange), AttributeValue(TextRange{5, 0}));
  EXPECT_TRUE(accessibility->pause(std::chrono::milliseconds(1)));
  EXPECT_EQ(read(attribute::selectedTextRange), AttributeValue(TextRange{1, 0})) << "time has passed";
}

TEST_F(AtspiAccessibilityTest, readsWhatStandsBeforeTheCaretAlongWithItsPlace) {
  openApplication();
  application->answer("GetCharacterExtents", bounds({100, 50, 12, 20}));
  const auto text = [this] { return read(attribute::stringForRange, {8, 2}); };
  const auto isTerminal = [this] { return read(attribute::isTerminal, {8, 2}); };
  for (const bool terminal : {false, true}) {
    if (terminal) application->answer("GetRole", value(busRole::terminal));
    accessibility->beginBudget(std::chrono::seconds(5));
    EXPECT_TRUE(read(attribute::boundsForRange, {8, 2}));
    const int asked = application->calls("GetText") + application->calls("GetRole");
    EXPECT_EQ(text(), AttributeValue(std::string("le")));
    EXPECT_EQ(isTerminal(), AttributeValue(terminal));
    EXPECT_EQ(application->calls("GetText") + application->calls("GetRole"), asked);
  }
  application->setText(U"0123456789", 10);
  EXPECT_EQ(text(), AttributeValue(std::string("le"))) << "for the same key";
  accessibility->beginBudget(std::chrono::seconds(5));
  EXPECT_EQ(text(), AttributeValue(std::string("89")));
  application->answer("GetText", value("9"));
  EXPECT_TRUE(read(attribute::boundsForRange, {8, 2}));
  EXPECT_FALSE(text()) << "less than was asked for";
}

TEST_F(AtspiAccessibilityTest, readsAndReplacesCharactersAsTheUserCountsThem) {
  std::string accented = "e";
  for (int i = 0; i < 40; ++i) accented += "\u0301";
  struct Case {
    std::string before;
    std::string last;
    std::int64_t count;
  };
  const Case cases[] = {{"é😀 ", "ñ:smile", 7},
                        {"a👩‍🚀🇩🇪", "e\u0301", 1},
                        {"a", "👩‍🚀🇩🇪é", 3},
                        {"ab", accented, 1}};
  openApplication();
  for (const auto& [before, last, count] : cases) {
    SCOPED_TRACE(last);
    const auto text = utf32(before + last);
    application->setText(text, static_cast<std::int32_t>(text.size()));
    accessibility->beginBudget(std::chrono::seconds(5));
    const auto caret = readAttribute<TextRange>(*accessibility, field, attribute::selectedTextRange);
    ASSERT_TRUE(caret);
    const TextRange range{caret->location - count, count};
    if (last != accented) {
      EXPECT_EQ(read(attribute::stringForRange, range), AttributeValue(last));
    }
    EXPECT_EQ(replace(range, "👍🏽"), AccessibilityStatus::success);
    EXPECT_EQ(utf8(application->text()), before + "👍🏽");
    EXPECT_EQ(accessibility->setAttribute(field, attribute::selectedText, std::string("x")),
              AccessibilityStatus::failure)
        << "nothing is selected any more";
  }
}

TEST_F(AtspiAccessibilityTest, writesOnlyTextAndOnlyInTheFieldWhereItWasSelected) {
  openApplication();
  EXPECT_EQ(replace({4, 6}, std::string("a\0b", 3)), AccessibilityStatus::failure);
  EXPECT_EQ(replace({4, 6}, "\xff"), AccessibilityStatus::failure);
  const ElementRef other = focus(FakeApplication::otherFieldPath);
  ASSERT_EQ(accessibility->setAttribute(field, attribute::selectedTextRange, TextRange{4, 6}),
            AccessibilityStatus::success);
  EXPECT_EQ(accessibility->setAttribute(other, attribute::selectedText, std::string("x")),
            AccessibilityStatus::failure);
  accessibility->beginBudget(longestCall);
  application->answer("GetInterfaces", interfaces({"org.a11y.atspi.Text"}));
  EXPECT_TRUE(read(attribute::value)) << "it can be read, as Kate's";
  EXPECT_EQ(replace({4, 6}, "x"), AccessibilityStatus::failure);
  EXPECT_EQ(application->text(), U"é😀 ñ:smile");
}

TEST_F(AtspiAccessibilityTest, passesOverAnApplicationThatDoesNotAnswer) {
  openApplication();
  application->hold("GetRole");
  const auto start = Clock::now();
  EXPECT_FALSE(read(attribute::role));
  EXPECT_GE(Clock::now() - start, longestCall);
  EXPECT_LT(Clock::now() - start, longestCall + tolerance);
  const int calls = application->calls("CaretOffset");
  EXPECT_FALSE(read(attribute::selectedTextRange));
  EXPECT_EQ(application->calls("CaretOffset"), calls) << "not even asked";
  application->release();
  EXPECT_TRUE(eventually([this] { return read(attribute::selectedTextRange).has_value(); }));
}

TEST_F(AtspiAccessibilityTest, spendsNoMoreThanTheBudget) {
  openApplication();
  accessibility->beginBudget(std::chrono::milliseconds(30));
  EXPECT_TRUE(accessibility->pause(std::chrono::milliseconds(20)));
  EXPECT_FALSE(accessibility->pause(std::chrono::milliseconds(20))) << "only ten are left";
  application->hold("GetRole");
  const auto start = Clock::now();
  EXPECT_FALSE(read(attribute::role));
  EXPECT_LT(Clock::now() - start, std::chrono::milliseconds(10) + tolerance);
  application->release();
  EXPECT_FALSE(read(attribute::selectedTextRange)) << "nothing is left";
  accessibility->beginBudget(std::chrono::milliseconds(150));
  EXPECT_TRUE(eventually([this] { return read(attribute::selectedTextRange).has_value(); }));
}

TEST_F(AtspiAccessibilityTest, aFocusLetGoByTheActiveProcessIsStillThere) {
  openApplication();
  application->announceWindow("deactivate");
  ASSERT_TRUE(becomesFocused("")) << "the active process is not known";
  activeProcess = ours;
  EXPECT_EQ(focusedPath(), FakeApplication::fieldPath);
  EXPECT_EQ(read(attribute::role), AttributeValue(std::string(role::textField)));
  activeProcess = ours + 1;
  EXPECT_EQ(focusedPath(), "") << "the user went to another process";
  activeProcess = ours;
  EXPECT_EQ(focusedPath(), FakeApplication::fieldPath);
  application.reset();
  EXPECT_TRUE(becomesFocused(""));
}

TEST_F(AtspiAccessibilityTest, whatHungWhenTheUserWentElsewhereHasNoFocus) {
  openApplication();
  ASSERT_EQ(focusedPath(), FakeApplication::fieldPath);
  processInBackground = ours;
  accessibility->beginBudget(std::chrono::seconds(5));
  EXPECT_EQ(focusedPath(), "");
  processInBackground.reset();
  accessibility->beginBudget(std::chrono::seconds(5));
  EXPECT_EQ(focusedPath(), FakeApplication::fieldPath);
}

TEST_F(AtspiAccessibilityTest, believesNoPaneThatTakesTheFocusOfItsField) {
  openApplication();
  countMoves();
  application->answer("GetState", [](DBusMessage* call, DBusMessageIter* reply) {
    const bool isField = std::string_view(dbus_message_get_path(call)) == FakeApplication::fieldPath;
    // Not visible, so that a search, which the looks below may bring about, finds nothing.
    const auto shown = busState::showing | busState::focused | busState::active;
    states(shown | (isField ? busState::editable : 0))(call, reply);
  });
  application->announceWindow("deactivate");
  ASSERT_TRUE(becomesFocused(""));
  application->announceWindow("activate");
  ASSERT_TRUE(becomesFocused(FakeApplication::fieldPath));
  application->announceFocus(FakeApplication::otherFieldPath, true);
  application->announceFocus(FakeApplication::fieldPath, false);
  ASSERT_TRUE(becomesFocused("")) << "all events have been judged";
  queue.runReady();
  EXPECT_EQ(moves, 0);
}

TEST_F(AtspiAccessibilityTest, leavesOutOurOwnWindows) {
  openApplication();
  openAccessibility(ours);
  countMoves();
  ASSERT_TRUE(eventually([this] { return read(attribute::role).has_value(); })) << "now it listens";
  const int calls = application->calls("GetRole");
  EXPECT_FALSE(eventually([this] { return focusedElement() != nullptr; }, [this] { announceFocusedField(); },
                          std::chrono::milliseconds(300)));
  EXPECT_EQ(moves, 0);
  EXPECT_EQ(application->calls("GetRole"), calls) << "a call would have waited for ourselves";
}

TEST_F(AtspiAccessibilityTest, leavesOutWindowsInTheBackground) {
  openApplication();
  countMoves();
  FakeApplication background(session->accessibilityBusAddress());
  background.answer("GetState", states(busState::visible | busState::editable | busState::focused));
  background.announceFocus(FakeApplication::otherFieldPath, true);
  ASSERT_TRUE(eventually([&] { return background.calls("GetState") > 0; }));
  application->announceFocus(FakeApplication::fieldPath, false);
  application->announceFocus(FakeApplication::fieldPath, true);
  EXPECT_TRUE(becomesFocused(FakeApplication::fieldPath));
  queue.runReady();
  EXPECT_EQ(moves, 0);
}

TEST_F(AtspiAccessibilityTest, looksForTheElementOfAWindowThatOnlyTellsItself) {
  application = std::make_unique<FakeApplication>(session->accessibilityBusAddress());
  application->hold("GetState");
  const auto isLooking = [this] {
    focusedElement();
    return accessibility->isBusy(accessibility->systemWide());
  };
  const auto announce = [this, next = 0]() mutable {
    // Each is a new reason to search, so they do not come too thick.
    if (next++ % 500 == 0) application->announceWindow("activate");
  };
  EXPECT_TRUE(eventually(isLooking, announce)) << "as soon as somebody asks";
  application->answerChildren();
  application->release();
  EXPECT_TRUE(becomesFocused(FakeApplication::fieldPath));
  EXPECT_FALSE(eventually(
      isLooking, [] {}, std::chrono::milliseconds(300)));
}

// An application asks who listens when it starts: one that did so just before us tells of its window nobody.
TEST_F(AtspiAccessibilityTest, looksForAWindowThatOpenedWithoutAWordWhileWeStarted) {
  FakeApplication windowless(session->accessibilityBusAddress());
  windowless.join();
  openAccessibility(0);
  ASSERT_TRUE(eventually([&] { return windowless.calls("GetChildren") > 0; })) << "the first look round";
  application = std::make_unique<FakeApplication>(session->accessibilityBusAddress());
  application->answerChildren();
  application->join();
  EXPECT_TRUE(becomesFocused(FakeApplication::fieldPath));
}

TEST_F(AtspiAccessibilityTest, comesBackWithTheAccessibilityBus) {
  openApplication();
  session->stopAccessibility();
  EXPECT_TRUE(becomesFocused(""));
  EXPECT_FALSE(read(attribute::role));
  session->startAccessibility();
  openApplication();
  EXPECT_EQ(read(attribute::role), AttributeValue(std::string(role::textField)));
}

}  // namespace
}  // namespace tessarin::testing
