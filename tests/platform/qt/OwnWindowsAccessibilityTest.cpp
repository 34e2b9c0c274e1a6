#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

#include "platform/qt/OwnWindowsAccessibility.h"
#include "platform/qt/TestApplication.h"
#include "support/FakeAccessibility.h"
#include "support/FocusedElement.h"

namespace tessarin::testing {
namespace {

using ui::OwnWindowsAccessibility;

template <class Edit>
std::string textOf(const Edit& edit) {
  if constexpr (requires { edit.text(); })
    return edit.text().toStdString();
  else
    return edit.toPlainText().toStdString();
}

/// A window of our own beside other applications that are scripted.
class World : public ::testing::Test {
 protected:
  World() { ensureApplication(); }

  template <class T>
  std::optional<T> read(const ElementRef& element, std::string_view name) {
    return readAttribute<T>(accessibility(), element, name);
  }
  ElementRef focusedApplication() {
    return read<ElementRef>(accessibility().systemWide(), attribute::focusedApplication).value_or(nullptr);
  }
  ElementRef focused() { return focusedElement(accessibility()); }
  std::optional<std::string> string(const ElementRef& element, const TextRange& range) {
    const auto value = accessibility().parameterizedAttribute(element, attribute::stringForRange, range);
    return value ? std::optional(std::get<std::string>(*value)) : std::nullopt;
  }
  AccessibilityStatus replace(const ElementRef& element, const TextRange& range, const std::string& text) {
    const auto selected = accessibility().setAttribute(element, attribute::selectedTextRange, range);
    if (selected != AccessibilityStatus::success) return selected;
    return accessibility().setAttribute(element, attribute::selectedText, text);
  }
  /// Made at first use: the application object stands by then.
  OwnWindowsAccessibility& accessibility() {
    if (!accessibility_) accessibility_ = std::make_unique<OwnWindowsAccessibility>(others);
    return *accessibility_;
  }

  FakeAccessibility others;

 private:
  std::unique_ptr<OwnWindowsAccessibility> accessibility_;
};

template <class Edit>
class OwnEditors : public World {
 protected:
  void SetUp() override {
    window.resize(300, 200);
    edit = new Edit(&window);
    edit->setGeometry(20, 30, 200, 60);
    ASSERT_TRUE(showFocused(window, *edit));
    press(Qt::Key_A, Qt::NoModifier, "a:smile");
  }
  void press(int key, Qt::KeyboardModifiers modifiers, const char* text = "") {
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(edit, &event);
  }

  QWidget window;
  Edit* edit = nullptr;
};

using OwnEditorTypes = ::testing::Types<QLineEdit, QTextEdit, QPlainTextEdit>;
TYPED_TEST_SUITE(OwnEditors, OwnEditorTypes);

TYPED_TEST(OwnEditors, TakeASelectionWithinTheRangeAndNoOther) {
  const auto role = std::is_same_v<TypeParam, QLineEdit> ? role::textField : role::textArea;
  EXPECT_EQ(this->template read<std::string>(this->focused(), attribute::role), role);
  EXPECT_EQ(this->string(this->focused(), {-1, 8}), std::nullopt) << "across the start";
  EXPECT_EQ(this->replace(this->focused(), {0, 8}, "x"), AccessibilityStatus::failure);
  this->press(Qt::Key_Left, Qt::ShiftModifier);
  EXPECT_EQ(this->template read<TextRange>(this->focused(), attribute::selectedTextRange), (TextRange{6, 1}));
  EXPECT_EQ(this->replace(this->focused(), {1, 3}, "x"), AccessibilityStatus::failure);
  EXPECT_EQ(this->replace(this->focused(), {1, 6}, "x"), AccessibilityStatus::success);
  EXPECT_EQ(textOf(*this->edit), "ax");
}

TYPED_TEST(OwnEditors, CountCharactersAsTheUserDoesAndAreWrittenToOnlyWhereSelected) {
  this->edit->clear();
  this->press(0, Qt::NoModifier, "é😀a👩‍🚀🇩🇪e\u0301");
  const auto caret = this->template read<TextRange>(this->focused(), attribute::selectedTextRange);
  ASSERT_TRUE(caret);
  const TextRange lastThree{caret->location - 3, 3};
  EXPECT_EQ(this->string(this->focused(), lastThree), "👩‍🚀🇩🇪e\u0301");
  EXPECT_EQ(this->template read<std::string>(this->focused(), "AXColor"), std::nullopt);
  EXPECT_EQ(this->replace(this->focused(), lastThree, "👍🏽"), AccessibilityStatus::success);
  EXPECT_EQ(this->accessibility().setAttribute(this->focused(), attribute::selectedText, std::string("x")),
            AccessibilityStatus::failure);
  EXPECT_EQ(textOf(*this->edit), "é😀a👍🏽");
}

TYPED_TEST(OwnEditors, ShowTheCaretWithinTheirFrame) {
  const auto position = this->template read<Point>(this->focused(), attribute::position);
  const auto bounds = this->accessibility().parameterizedAttribute(this->focused(), attribute::boundsForRange,
                                                                   TextRange{7, 0});
  ASSERT_TRUE(position && bounds);
  EXPECT_EQ(this->template read<Size>(this->focused(), attribute::size), (Size{200, 60}));
  const Rect caret = std::get<Rect>(*bounds);
  const Rect frame{position->x, position->y, 200, 60};
  EXPECT_GT(caret.height, 5);
  EXPECT_TRUE(frame.contains({caret.x, caret.y}) && frame.contains({caret.x, caret.maxY()}));
}

TYPED_TEST(OwnEditors, FailOnceTheyHaveGone) {
  const ElementRef element = this->focused();
  delete this->edit;
  EXPECT_EQ(this->template read<std::string>(element, attribute::role), std::nullopt);
  EXPECT_EQ(this->string(element, {0, 1}), std::nullopt);
  EXPECT_EQ(this->replace(element, {0, 1}, "x"), AccessibilityStatus::failure);
}

class OwnWindows : public World {
 protected:
  QWidget window;
};

TEST_F(OwnWindows, SayWhetherOthersAreBusy) {
  others.busy = true;
  EXPECT_TRUE(accessibility().isBusy(accessibility().systemWide()));
  EXPECT_TRUE(accessibility().isBusy(std::make_shared<FakeElement>()));
  auto* edit = new QLineEdit(&window);
  ASSERT_TRUE(showFocused(window, *edit));
  EXPECT_FALSE(accessibility().isBusy(focused()));
}

TEST_F(OwnWindows, KeepPasswordsToThemselves) {
  auto* edit = new QLineEdit("secret", &window);
  edit->setEchoMode(QLineEdit::Password);
  ASSERT_TRUE(showFocused(window, *edit));
  EXPECT_EQ(read<std::string>(focused(), attribute::role), role::secureTextField);
  EXPECT_EQ(read<std::string>(focused(), attribute::value), std::nullopt);
  EXPECT_EQ(read<TextRange>(focused(), attribute::selectedTextRange), std::nullopt);
  EXPECT_EQ(string(focused(), {0, 3}), std::nullopt);
}

TEST_F(OwnWindows, AreNotWrittenToWhereTextIsReadOnly) {
  auto* edit = new QLineEdit("abc", &window);
  edit->setReadOnly(true);
  ASSERT_TRUE(showFocused(window, *edit));
  EXPECT_EQ(read<std::string>(focused(), attribute::value), std::nullopt);
  EXPECT_EQ(replace(focused(), {0, 3}, "x"), AccessibilityStatus::failure);
  EXPECT_EQ(edit->text(), "abc");
}

TEST_F(OwnWindows, ReplaceInTheCaretsParagraphSoThatItCanBeUndone) {
  auto* edit = new QTextEdit(&window);
  edit->setPlainText("one\ntwo:x");
  edit->moveCursor(QTextCursor::End);
  ASSERT_TRUE(showFocused(window, *edit));
  EXPECT_EQ(read<TextRange>(focused(), attribute::selectedTextRange), (TextRange{5, 0}));
  EXPECT_EQ(replace(focused(), {3, 2}, "a\nb"), AccessibilityStatus::success);
  EXPECT_EQ(edit->toPlainText(), "one\ntwoa\nb");
  edit->undo();
  EXPECT_EQ(edit->toPlainText(), "one\ntwo:x");
}

TEST_F(OwnWindows, SayWhenATextWasNotTaken) {
  auto* edit = new QLineEdit(&window);
  edit->setMaxLength(3);
  edit->setText("abc");
  ASSERT_TRUE(showFocused(window, *edit));
  EXPECT_EQ(replace(focused(), {2, 1}, "xyz"), AccessibilityStatus::erasedOnly);
  EXPECT_EQ(replace(focused(), {3, 0}, "xyz"), AccessibilityStatus::failure);
}

using OtherApplications = World;

TEST_F(OtherApplications, AreAskedWhileNoWindowOfOursIsActive) {
  const auto element = std::make_shared<FakeElement>();
  element->parameterized["AXStringForRange"] = [](const AttributeValue&) { return std::string("theirs"); };
  others.focus(element);
  ASSERT_EQ(focused(), element);
  EXPECT_EQ(string(focused(), {0, 6}), "theirs");
  EXPECT_EQ(replace(focused(), {0, 6}, "x"), AccessibilityStatus::success);
  EXPECT_EQ(others.writes.size(), 2U);
}

TEST_F(OtherApplications, AreNotAskedForOurFocus) {
  QWidget window;
  auto* edit = new QLineEdit(&window);
  ASSERT_TRUE(showFocused(window, *edit));
  others.calls = 0;
  EXPECT_EQ(read<std::string>(focused(), attribute::role), role::textField);
  EXPECT_EQ(others.calls, 0);
  window.hide();
  EXPECT_TRUE(eventuallyInLoop([this] { return focusedApplication() == others.application; }));
}

TEST_F(OwnWindows, TellWhenTheFocusMovesUntilUnsubscribed) {
  auto* first = new QLineEdit(&window);
  auto* second = new QTextEdit(&window);
  ASSERT_TRUE(showFocused(window, *first));
  int moves = 0;
  Subscription subscription = accessibility().onFocusMoved([&moves] { ++moves; });
  second->setFocus();
  EXPECT_EQ(moves, 1);
  subscription.reset();
  first->setFocus();
  EXPECT_EQ(moves, 1);
}

}  // namespace
}  // namespace tessarin::testing
