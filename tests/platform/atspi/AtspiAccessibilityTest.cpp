#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <optional>
#include <string>

#include "platform/atspi/AccessibilityBus.h"
#include "platform/atspi/AtspiAccessibility.h"
#include "platform/atspi/FakeApplication.h"
#include "platform/atspi/Roles.h"
#include "support/Eventually.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/desktop/PrivateSession.h"

namespace tessarin::atspi {
namespace {

using testing::eventually;
using testing::FakeApplication;
using testing::ManualMainQueue;
using testing::PrivateSession;
using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds longestCall{50};
/// What a busy machine may add to a deadline.
constexpr std::chrono::milliseconds tolerance{60};

class AtspiAccessibilityTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { session = std::make_unique<PrivateSession>(); }
  static void TearDownTestSuite() { session.reset(); }

  AtspiAccessibilityTest() { openAccessibility(0); }

  /// The application runs in our own process, so a test says whose windows are passed over.
  void openAccessibility(std::uint32_t ownProcess) {
    AtspiAccessibility::Options options;
    options.isTrusted = [this] { return isTrusted; };
    options.prompt = [this] { ++prompts; };
    options.activeProcess = [this] { return activeProcess; };
    options.coordinateSpace = [] { return CoordinateSpace(2, 500); };
    options.sessionBusAddress = session->busAddress();
    options.ownProcess = ownProcess;
    accessibility = std::make_unique<AtspiAccessibility>(queue, options);
  }

  void openApplication() {
    application = std::make_unique<FakeApplication>(session->accessibilityBusAddress());
    field = focus(FakeApplication::fieldPath);
  }

  ElementRef focusedElement() {
    const auto focused =
        readAttribute<ElementRef>(*accessibility, accessibility->systemWide(), attribute::focusedApplication);
    if (!focused) return nullptr;
    return readAttribute<ElementRef>(*accessibility, *focused, attribute::focusedElement).value_or(nullptr);
  }

  std::string focusedPath() {
    const ElementRef element = focusedElement();
    return element ? dynamic_cast<const AtspiElement&>(*element).object().path : "";
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

  static std::unique_ptr<PrivateSession> session;
  testing::LogRecorder log;
  ManualMainQueue queue;
  bool isTrusted = true;
  int prompts = 0;
  std::optional<std::uint32_t> activeProcess;
  std::unique_ptr<AtspiAccessibility> accessibility;
  std::unique_ptr<FakeApplication> application;
  ElementRef field;
};

std::unique_ptr<PrivateSession> AtspiAccessibilityTest::session;

TEST_F(AtspiAccessibilityTest, asksForTrustAfreshEveryTime) {
  EXPECT_TRUE(accessibility->isTrusted());
  isTrusted = false;
  EXPECT_FALSE(accessibility->isTrusted());
  accessibility->prompt();
  EXPECT_EQ(prompts, 1);
}

TEST_F(AtspiAccessibilityTest, switchesTheSessionsAccessibilityOn) {
  ASSERT_FALSE(session->isAccessibilityEnabled());
  EXPECT_TRUE(AccessibilityBus::enable(session->busAddress()));
  EXPECT_TRUE(session->isAccessibilityEnabled());
}

TEST_F(AtspiAccessibilityTest, readsAFieldAndReplacesInIt) {
  openApplication();
  EXPECT_EQ(read(attribute::value), AttributeValue(std::string()));
  EXPECT_EQ(application->calls("GetText"), 0) << "readability is found out without fetching the text";
  EXPECT_EQ(read(attribute::selectedTextRange), AttributeValue(TextRange{10, 0}));
  EXPECT_EQ(read(attribute::stringForRange, {3, 7}), AttributeValue(std::string("ñ:smile")));
  EXPECT_EQ(replace({4, 6}, "👍🏽"), AccessibilityStatus::success);
  EXPECT_EQ(application->text(), U"é😀 ñ👍🏽");
}

TEST_F(AtspiAccessibilityTest, countsCharactersAsTheUserSeesThem) {
  openApplication();
  application->setText(U"a👩‍🚀🇩🇪é", 8);
  // The family of each character: four, two and two code points are one character each.
  EXPECT_EQ(read(attribute::stringForRange, {6, 1}), AttributeValue(std::string("é")));
  application->setText(U"a👩‍🚀🇩🇪é", 7);
  EXPECT_EQ(read(attribute::stringForRange, {5, 2}), AttributeValue(std::string("🇩🇪é")));
  EXPECT_EQ(replace({4, 3}, "x"), AccessibilityStatus::success);
  EXPECT_EQ(application->text(), U"ax");
}

TEST_F(AtspiAccessibilityTest, findsTheStartOfVeryLongCharacters) {
  openApplication();
  const std::u32string accented = U"e" + std::u32string(40, U'\u0301');
  application->setText(U"ab" + accented, 43);
  EXPECT_EQ(replace({42, 1}, "c"), AccessibilityStatus::success);
  EXPECT_EQ(application->text(), U"abc");
}

TEST_F(AtspiAccessibilityTest, takesWhatThereIsWhenTheTextIsShorter) {
  openApplication();
  application->setText(U"abc", 3);
  EXPECT_EQ(replace({0, 3}, "x"), AccessibilityStatus::success);
  EXPECT_EQ(application->text(), U"x");
}

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
    application->answerUint("GetRole", expected.role);
    application->answerAttribute("tag", expected.tag);
    EXPECT_EQ(read(attribute::role), AttributeValue(std::string(expected.name)));
  }
}

TEST_F(AtspiAccessibilityTest, hasAValueOnlyWhereTextCanBeWritten) {
  struct Case {
    const char* name;
    std::function<void(FakeApplication&)> spoil;
  };
  const Case cases[] = {
      {"terminal", [](FakeApplication& a) { a.answerUint("GetRole", busRole::terminal); }},
      {"read-only", [](FakeApplication& a) { a.answerStates(busState::visible | busState::focused); }},
      {"no editable text", [](FakeApplication& a) { a.answerInterface("org.a11y.atspi.Text"); }},
      {"no role", [](FakeApplication& a) { a.refuse("GetRole"); }},
      {"no states", [](FakeApplication& a) { a.answerString("GetState", "all of them"); }},
  };
  for (const Case& spoilt : cases) {
    SCOPED_TRACE(spoilt.name);
    openApplication();
    ASSERT_TRUE(read(attribute::value));
    spoilt.spoil(*application);
    EXPECT_FALSE(read(attribute::value));
    application.reset();
  }
}

TEST_F(AtspiAccessibilityTest, believesNoGarbage) {
  constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
  struct Case {
    const char* name;
    std::function<void(FakeApplication&)> spoil;
    std::string_view attribute;
    std::optional<TextRange> range;
  };
  const std::string huge(8 << 20, 'x');
  const Case cases[] = {
      {"negative caret",
       [](auto& a) { a.answerProperty("CaretOffset", -1); },
       attribute::selectedTextRange,
       {}},
      {"caret is a string",
       [](auto& a) { a.answerProperty("CaretOffset", "ten"); },
       attribute::selectedTextRange,
       {}},
      {"caret is no variant",
       [](auto& a) { a.answerInt("CaretOffset", 3); },
       attribute::selectedTextRange,
       {}},
      {"no caret", [](auto& a) { a.refuse("CaretOffset"); }, attribute::selectedTextRange, {}},
      {"empty role", [](auto& a) { a.answer("GetRole", [](auto*, auto*) {}); }, attribute::role, {}},
      {"parent is a number", [](auto& a) { a.answerProperty("Parent", 5); }, attribute::parent, {}},
      {"parent has no address", [](auto& a) { a.answerParent("not a name", "/x"); }, attribute::parent, {}},
      {"parent is none", [](auto& a) { a.answerParent(":1.1", nullPath); }, attribute::parent, {}},
      {"no toolkit", [](auto& a) { a.refuse("ToolkitName"); }, attribute::selectedTextRange, {}},
      {"less text", [](auto& a) { a.answerString("GetText", "abc"); }, attribute::stringForRange,
       TextRange{4, 6}},
      {"huge text", [&](auto& a) { a.answerString("GetText", huge); }, attribute::stringForRange,
       TextRange{4, 6}},
      {"text is a number", [](auto& a) { a.answerInt("GetText", 7); }, attribute::stringForRange,
       TextRange{4, 6}},
      {"range before the start", [](auto&) {}, attribute::stringForRange, TextRange{-20, 6}},
      {"range of negative length", [](auto&) {}, attribute::stringForRange, TextRange{10, -3}},
      {"range beyond the end", [](auto&) {}, attribute::stringForRange, TextRange{400, 6}},
      {"range beyond all", [](auto&) {}, attribute::stringForRange, TextRange{std::int64_t{1} << 40, 6}},
      {"very long range", [](auto&) {}, attribute::stringForRange, TextRange{0, 1 << 20}},
      {"bounds nowhere",
       [](auto& a) {
         a.answerBounds({least, least, 5, 10});
       },
       attribute::boundsForRange, TextRange{1, 0}},
      {"bounds of no height",
       [](auto& a) {
         a.answerBounds({1, 1, 5, 0});
       },
       attribute::boundsForRange, TextRange{1, 0}},
      {"bounds without end",
       [](auto& a) {
         a.answerBounds({1, 1, 5, 70000});
       },
       attribute::boundsForRange, TextRange{1, 0}},
      {"unknown attribute", [](auto&) {}, "AXColor", {}},
  };
  for (const Case& spoilt : cases) {
    SCOPED_TRACE(spoilt.name);
    openApplication();
    spoilt.spoil(*application);
    EXPECT_FALSE(spoilt.range ? read(spoilt.attribute, *spoilt.range) : read(spoilt.attribute));
    application.reset();
  }
}

TEST_F(AtspiAccessibilityTest, findsTheCaretsRectangleInPoints) {
  openApplication();
  application->answerBounds({100, 50, 12, 20});
  EXPECT_EQ(read(attribute::boundsForRange, {3, 0}), AttributeValue(Rect{50, 25, 0.5, 10}));
  // No rectangle where there is no character: the caret stands behind the one before.
  application->answerBounds({100, 50, 12, 20}, 9);
  EXPECT_EQ(read(attribute::boundsForRange, {10, 0}), AttributeValue(Rect{56, 25, 0.5, 10}));
  application->setText(U"one line\n", 9);
  application->answerBounds({100, 50, 12, 20}, 8);
  application->answerExtents({30, 40, 300, 200});
  EXPECT_EQ(read(attribute::boundsForRange, {9, 0}), AttributeValue(Rect{15, 35, 0.5, 10}))
      << "at the start of the next line";
  EXPECT_EQ(read(attribute::position), AttributeValue(Point{15, 20}));
  EXPECT_EQ(read(attribute::size), AttributeValue(Size{150, 100}));
}

TEST_F(AtspiAccessibilityTest, saysExactlyWhatAReplacementDid) {
  struct Case {
    const char* name;
    std::function<void(FakeApplication&)> spoil;
    AccessibilityStatus status;
  };
  const auto no = [](DBusMessage*, DBusMessage* reply) {
    const dbus_bool_t refusal = FALSE;
    dbus_message_append_args(reply, DBUS_TYPE_BOOLEAN, &refusal, DBUS_TYPE_INVALID);
  };
  const Case cases[] = {
      {"deleting is refused", [&](auto& a) { a.answer("DeleteText", no); }, AccessibilityStatus::failure},
      {"deleting is unknown", [](auto& a) { a.refuse("DeleteText"); }, AccessibilityStatus::failure},
      {"deletes and denies it",
       [&](auto& a) {
         a.answer("DeleteText", [&a, no](DBusMessage* call, DBusMessage* reply) {
           a.answerString("GetText", "é😀 ñ");
           no(call, reply);
         });
       },
       AccessibilityStatus::erasedOnly},
      {"deleting is not answered", [](auto& a) { a.hold("DeleteText"); }, AccessibilityStatus::erasedOnly},
      {"inserting is refused", [&](auto& a) { a.answer("InsertText", no); }, AccessibilityStatus::erasedOnly},
      {"inserting is unknown", [](auto& a) { a.refuse("InsertText"); }, AccessibilityStatus::erasedOnly},
      {"inserting is not answered", [](auto& a) { a.hold("InsertText"); }, AccessibilityStatus::success},
      {"reading is refused", [](auto& a) { a.refuse("GetText"); }, AccessibilityStatus::failure},
  };
  for (const Case& spoilt : cases) {
    SCOPED_TRACE(spoilt.name);
    openApplication();
    spoilt.spoil(*application);
    EXPECT_EQ(replace({4, 6}, "😀"), spoilt.status);
    application.reset();
  }
}

TEST_F(AtspiAccessibilityTest, aHeldReplacementIsCarriedOutOnce) {
  openApplication();
  application->hold("InsertText");
  ASSERT_EQ(replace({4, 6}, "😀"), AccessibilityStatus::success);
  application->release();
  EXPECT_TRUE(eventually([this] { return application->text() == U"é😀 ñ😀"; }));
}

TEST_F(AtspiAccessibilityTest, writesOnlyWhatWasSelected) {
  openApplication();
  EXPECT_EQ(accessibility->setAttribute(field, attribute::selectedText, std::string("x")),
            AccessibilityStatus::failure);
  EXPECT_EQ(replace({4, 6}, std::string("a\0b", 3)), AccessibilityStatus::failure);
  EXPECT_EQ(replace({4, 6}, "\xff"), AccessibilityStatus::failure);
  const ElementRef other = focus(FakeApplication::otherFieldPath);
  ASSERT_EQ(accessibility->setAttribute(field, attribute::selectedTextRange, TextRange{4, 6}),
            AccessibilityStatus::success);
  EXPECT_EQ(accessibility->setAttribute(other, attribute::selectedText, std::string("x")),
            AccessibilityStatus::failure);
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

TEST_F(AtspiAccessibilityTest, tellsOnceThatTheFocusIsElsewhere) {
  openApplication();
  queue.runReady();
  int moves = 0;
  Subscription subscription = accessibility->onFocusMoved([&moves] { ++moves; });
  application->announceFocus(FakeApplication::fieldPath, false);
  ASSERT_TRUE(eventually([this] { return focusedPath().empty(); }));
  focus(FakeApplication::fieldPath);
  queue.runReady();
  EXPECT_EQ(moves, 0) << "lost and got back";
  focus(FakeApplication::otherFieldPath);
  const auto turn = [this] { queue.runReady(); };
  EXPECT_TRUE(eventually([&moves] { return moves == 1; }, turn));
  subscription.reset();
  focus(FakeApplication::fieldPath);
  queue.runReady();
  EXPECT_EQ(moves, 1);
}

TEST_F(AtspiAccessibilityTest, aFocusLetGoByTheActiveProcessIsStillThere) {
  openApplication();
  application->announceWindow("deactivate");
  ASSERT_TRUE(eventually([this] { return focusedPath().empty(); })) << "the active process is not known";
  const auto ours = static_cast<std::uint32_t>(getpid());
  activeProcess = ours;
  EXPECT_EQ(focusedPath(), FakeApplication::fieldPath);
  EXPECT_EQ(read(attribute::role), AttributeValue(std::string(role::textField)));
  activeProcess = ours + 1;
  EXPECT_EQ(focusedPath(), "") << "the user went to another process";
  activeProcess = ours;
  EXPECT_EQ(focusedPath(), FakeApplication::fieldPath);
  application.reset();
  EXPECT_TRUE(eventually([this] { return focusedPath().empty(); }));
}

TEST_F(AtspiAccessibilityTest, anApplicationsFocusInsteadOfOneLetGoIsNoMove) {
  openApplication();
  activeProcess = static_cast<std::uint32_t>(getpid());
  queue.runReady();
  int moves = 0;
  const Subscription subscription = accessibility->onFocusMoved([&moves] { ++moves; });
  FakeApplication other(session->accessibilityBusAddress());
  application->announceWindow("deactivate");
  other.announceWindow("activate");
  other.announceFocus(FakeApplication::otherFieldPath, true);
  EXPECT_TRUE(eventually([this] { return focusedPath() == FakeApplication::otherFieldPath; }));
  queue.runReady();
  EXPECT_EQ(moves, 0) << "the active window tells of that";
}

TEST_F(AtspiAccessibilityTest, leavesOutOurOwnWindows) {
  openApplication();
  openAccessibility(static_cast<std::uint32_t>(getpid()));
  int moves = 0;
  const Subscription subscription = accessibility->onFocusMoved([&moves] { ++moves; });
  ASSERT_TRUE(eventually([this] { return read(attribute::role).has_value(); })) << "now it listens";
  const auto announce = [this] {
    application->announceWindow("Activate");
    application->announceFocus(FakeApplication::fieldPath, true);
    queue.runReady();
  };
  const int calls = application->calls("GetRole");
  EXPECT_FALSE(
      eventually([this] { return focusedElement() != nullptr; }, announce, std::chrono::milliseconds(300)));
  EXPECT_EQ(moves, 0);
  EXPECT_EQ(application->calls("GetRole"), calls) << "a call would have waited for ourselves";
}

TEST_F(AtspiAccessibilityTest, leavesOutWindowsInTheBackground) {
  openApplication();
  queue.runReady();
  int moves = 0;
  const Subscription subscription = accessibility->onFocusMoved([&moves] { ++moves; });
  FakeApplication background(session->accessibilityBusAddress());
  background.setActive(false);
  background.announceFocus(FakeApplication::otherFieldPath, true);
  ASSERT_TRUE(eventually([&] { return background.calls("GetState") > 0; }));
  application->announceFocus(FakeApplication::fieldPath, false);
  application->announceFocus(FakeApplication::fieldPath, true);
  EXPECT_TRUE(eventually([this] { return focusedPath() == FakeApplication::fieldPath; }));
  queue.runReady();
  EXPECT_EQ(moves, 0);
}

TEST_F(AtspiAccessibilityTest, findsTheElementOfAWindowThatOnlyTellsItself) {
  application = std::make_unique<FakeApplication>(session->accessibilityBusAddress());
  application->answerChildren();
  EXPECT_TRUE(eventually([this] { return focusedPath() == FakeApplication::fieldPath; },
                         [this, next = 0]() mutable {
                           // Each is a new reason to search, so they do not come too thick.
                           if (next++ % 500 == 0) application->announceWindow("activate");
                         }));
}

TEST_F(AtspiAccessibilityTest, forgetsTheFocusOfAnApplicationThatHasGone) {
  openApplication();
  application.reset();
  EXPECT_TRUE(eventually([this] { return focusedElement() == nullptr; }));
}

TEST_F(AtspiAccessibilityTest, comesBackWithTheAccessibilityBus) {
  openApplication();
  session->stopAccessibility();
  EXPECT_TRUE(eventually([this] { return focusedElement() == nullptr; }));
  EXPECT_FALSE(read(attribute::role));
  session->startAccessibility();
  openApplication();
  EXPECT_EQ(read(attribute::role), AttributeValue(std::string(role::textField)));
}

}  // namespace
}  // namespace tessarin::atspi
