#include <algorithm>

#include "platform/atspi/AtspiAccessibility.h"
#include "support/AccessibilitySuite.h"
#include "support/Eventually.h"
#include "support/ManualMainQueue.h"
#include "support/desktop/PrivateDisplay.h"
#include "support/desktop/PrivateSession.h"

namespace tessarin::testing {
namespace {

using atspi::AtspiAccessibility;

/// One display for all tests of this file. Each has a session of its own, for editors open what was open
/// last.
class EditorTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    display = std::make_unique<PrivateDisplay>();
    display->startWindowManager();
  }
  static void TearDownTestSuite() { display.reset(); }

  /// Editors on a busy machine need their time; what is tested here is what they do.
  EditorTest() { openAccessibility(); }

  void openAccessibility() {
    AtspiAccessibility::Options options;
    options.isTrusted = [] { return true; };
    options.coordinateSpace = [] { return CoordinateSpace(1, 1024); };
    options.activeWindowFrame = [this] { return windowFrame; };
    options.sessionBusAddress = session.busAddress();
    options.longestCall = std::chrono::seconds(2);
    accessibility = std::make_unique<AtspiAccessibility>(queue, options);
  }

  ElementRef focusedElement() {
    accessibility->beginBudget(std::chrono::seconds(10));
    return testing::focusedElement(*accessibility);
  }

  bool hasValue() {
    const ElementRef element = focusedElement();
    return element && accessibility->attribute(element, attribute::value);
  }

  std::optional<TextRange> caret(const ElementRef& element) {
    return readAttribute<TextRange>(*accessibility, element, attribute::selectedTextRange);
  }
  std::optional<std::string> role() {
    return readAttribute<std::string>(*accessibility, focusedElement(), attribute::role);
  }

  std::string before(std::int64_t characters) {
    const ElementRef element = focusedElement();
    const auto range = caret(element);
    if (!range) return "(no caret)";
    const auto text = accessibility->parameterizedAttribute(
        element, attribute::stringForRange, TextRange{range->location - characters, characters});
    return text ? std::get<std::string>(*text) : "(no text)";
  }

  AccessibilityStatus replace(std::int64_t characters, const std::string& text) {
    const ElementRef element = focusedElement();
    const auto range = caret(element);
    if (!range) return AccessibilityStatus::failure;
    const std::int64_t start = std::max<std::int64_t>(range->location - characters, 0);
    accessibility->setAttribute(element, attribute::selectedTextRange,
                                TextRange{start, range->location - start});
    return accessibility->setAttribute(element, attribute::selectedText, text);
  }

  void type(const std::string& text) { ASSERT_EQ(session.run({"xdotool", "type", "--delay", "1", text}), 0); }
  void press(const std::string& key) { ASSERT_EQ(session.run({"xdotool", "key", key}), 0); }

  static std::unique_ptr<PrivateDisplay> display;
  PrivateSession session{display->variable()};
  ManualMainQueue queue;
  std::unique_ptr<AtspiAccessibility> accessibility;
  std::optional<Rect> windowFrame;
};

std::unique_ptr<PrivateDisplay> EditorTest::display;

struct Editor {
  const char* name;
  std::vector<std::string> command;
};

class EachEditorTest : public EditorTest, public ::testing::WithParamInterface<Editor> {
 protected:
  /// Starts the editor on a text and puts the caret at its end.
  void open(const std::string& text) {
    session.folder().write("text.txt", text);
    std::vector<std::string> command = GetParam().command;
    command.push_back(session.folder() / "text.txt");
    editor = session.start(command);
    ASSERT_TRUE(eventually([this] { return hasValue(); }));
    // The file may be read after the window has come, and the caret is set back then.
    ASSERT_TRUE(eventually([&] { return before(100) == text; }, [this] { press("ctrl+End"); }));
  }

  ChildProcess editor;
};

INSTANTIATE_TEST_SUITE_P(Editors, EachEditorTest,
                         ::testing::Values(Editor{"gtk3", {"mousepad", "--disable-server"}},
                                           Editor{"gtk4", {"gnome-text-editor", "-s"}},
                                           Editor{"qt5", {"featherpad", "--standalone"}}),
                         [](const auto& instance) { return std::string(instance.param.name); });

TEST_P(EachEditorTest, replacesInTheMiddleByTextOfManyUnits) {
  ASSERT_NO_FATAL_FAILURE(open("é😀 ñ|rest"));
  for (int i = 0; i < 5; ++i) press("Left");
  type(":a");
  ASSERT_TRUE(eventually([this] { return before(2) == ":a"; }));
  EXPECT_EQ(role(), role::textArea);
  EXPECT_EQ(replace(2, "👩‍🚀é\nZ"), AccessibilityStatus::success);
  EXPECT_EQ(before(4), "👩‍🚀é\nZ");
  // What is typed next stands behind the text, so the caret does.
  type("x");
  press("ctrl+End");
  EXPECT_TRUE(eventually([this] { return before(100) == "é😀 ñ👩‍🚀é\nZx|rest"; })) << before(100);
}

TEST_P(EachEditorTest, tellsWhereTheCaretIs) {
  if (std::string(GetParam().name) == "gtk4") windowFrame = Rect{};
  ASSERT_NO_FATAL_FAILURE(open("one two"));
  const ElementRef element = focusedElement();
  const auto range = caret(element);
  ASSERT_TRUE(range);
  const auto bounds = accessibility->parameterizedAttribute(element, attribute::boundsForRange, *range);
  ASSERT_TRUE(bounds);
  const auto position = readAttribute<Point>(*accessibility, element, attribute::position);
  const auto size = readAttribute<Size>(*accessibility, element, attribute::size);
  ASSERT_TRUE(position && size);
  const Rect caretBounds = std::get<Rect>(*bounds);
  EXPECT_GT(caretBounds.height, 5);
  EXPECT_LT(caretBounds.height, 60);
  EXPECT_GT(caretBounds.x, position->x + 20) << "the caret stands behind seven letters";
  EXPECT_LT(caretBounds.x, position->x + 200);
}

TEST_P(EachEditorTest, isFoundWhenItHadTheFocusBeforeUsAndLosesItToAWindowThatIsNotAccessible) {
  ASSERT_NO_FATAL_FAILURE(open("text"));
  openAccessibility();
  EXPECT_TRUE(eventually([this] { return hasValue(); }));
  EXPECT_EQ(before(100), "text");
  const ChildProcess terminal = session.start({"xterm"});
  EXPECT_TRUE(eventually([this] { return focusedElement() == nullptr; }));
}

}  // namespace
}  // namespace tessarin::testing
