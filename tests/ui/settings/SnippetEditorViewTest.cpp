#include <QClipboard>
#include <QInputMethodEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "Matchers.h"
#include "input/Preferences.h"
#include "platform/qt/OwnTextField.h"
#include "ui/settings/SettingsTest.h"
#include "ui/settings/SnippetEditorView.h"

namespace tessarin::ui {
namespace {

using testing::child;
using testing::eventuallyInLoop;
using testing::shows;

class SnippetEditorViewTest : public testing::SettingsTest {
 protected:
  void open(std::optional<Snippet> snippet = std::nullopt) {
    sheet = std::make_unique<SnippetEditorView>(services(), std::move(snippet));
    sheet->show();
    sheet->activateWindow();
    ASSERT_TRUE(eventuallyInLoop([this] { return sheet->isActiveWindow(); }));
    const auto fields = sheet->findChildren<QLineEdit*>();
    ASSERT_EQ(fields.size(), 3);
    name = fields[0];
    trigger = fields[1];
    keywords = fields[2];
    replacement = sheet->findChild<QPlainTextEdit*>();
  }
  void type(QWidget* widget, const QString& text) {
    widget->setFocus();
    QTest::keyClicks(widget, text);
  }
  void fill() {
    type(name, "n");
    type(trigger, "t");
    type(replacement, "r");
  }
  QPushButton* button(const QString& text) const { return child<QPushButton>(*sheet, text); }
  bool isClosed() const { return !sheet->isVisible(); }

  std::unique_ptr<SnippetEditorView> sheet;
  QLineEdit* name = nullptr;
  QLineEdit* trigger = nullptr;
  QLineEdit* keywords = nullptr;
  QPlainTextEdit* replacement = nullptr;
};

TEST_F(SnippetEditorViewTest, CanBeConfirmedOnceTheThreeTextsAreFilled) {
  open();
  fill();
  for (QWidget* widget : std::initializer_list<QWidget*>{name, trigger, replacement}) {
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Backspace);
    EXPECT_FALSE(button("Add")->isEnabled());
    QTest::keyClick(keywords, Qt::Key_Return);
    EXPECT_FALSE(isClosed());
    type(widget, "x");
    EXPECT_TRUE(button("Add")->isEnabled());
  }
}

TEST_F(SnippetEditorViewTest, StoresANewSnippetAsTyped) {
  open();
  type(name, " n ");
  type(trigger, ":my t!");
  type(keywords, " a ,  ,b,,c");
  type(replacement, "{{date}}");
  QTest::keyClick(replacement, Qt::Key_Return);
  type(replacement, "r");
  QTest::mouseClick(button("Add"), Qt::LeftButton);
  EXPECT_TRUE(isClosed());
  ASSERT_EQ(store->userSnippets().size(), 1U);
  const Snippet& made = store->userSnippets()[0];
  EXPECT_EQ(made.id.size(), 36U);
  EXPECT_EQ(made, (Snippet{made.id, " n ", "myt", "{{date}}\nr", {"a", "b", "c"}, "Custom", false}));
}

TEST_F(SnippetEditorViewTest, StoresAnEditedSnippetInItsPlace) {
  store->addSnippet(mine("first", "a\u00a0b"));
  store->addSnippet({"id", "Name", "c++", "a\u00a0b\r\nc", {"x", "y z"}, "Theirs", false});
  open(store->userSnippets()[1]);
  QTest::mouseClick(button("Save"), Qt::LeftButton);
  EXPECT_EQ(store->userSnippets()[1],
            (Snippet{"id", "Name", "c", "a\u00a0b\r\nc", {"x", "y z"}, "Custom", false}));
  open(store->userSnippets()[0]);
  replacement->moveCursor(QTextCursor::End);
  type(replacement, "c");
  QTest::mouseClick(button("Save"), Qt::LeftButton);
  EXPECT_EQ(store->userSnippets()[0].replacement, "a\u00a0bc") << "special spaces are kept";
  EXPECT_EQ(store->userSnippets().size(), 2U);
}

TEST_F(SnippetEditorViewTest, EscapeStoresNothingAndReturnConfirmsWhereItMakesNoLine) {
  open();
  fill();
  QTest::keyClick(replacement, Qt::Key_Escape);
  EXPECT_TRUE(isClosed());
  EXPECT_THAT(triggers(), IsEmpty());
  open();
  fill();
  replacement->setFocus();
  QTest::keyClick(replacement, Qt::Key_Return);
  EXPECT_FALSE(isClosed());
  QTest::keyClick(replacement, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_TRUE(isClosed());
  open();
  fill();
  QTest::keyClick(name, Qt::Key_Return);
  EXPECT_TRUE(isClosed());
  ASSERT_EQ(store->userSnippets().size(), 2U);
  EXPECT_EQ(store->userSnippets()[0].replacement, "r\n");
  EXPECT_EQ(store->userSnippets()[1].replacement, "r");
}

TEST_F(SnippetEditorViewTest, TheTriggerIsFilteredAroundTheCaret) {
  open();
  type(trigger, "ab");
  QTest::keyClick(trigger, Qt::Key_Left);
  type(trigger, ": x!");
  EXPECT_EQ(trigger->text(), "axb");
  EXPECT_EQ(trigger->cursorPosition(), 2);
  QGuiApplication::clipboard()->setText(" é:\n2 ");
  QTest::keyClick(trigger, Qt::Key_V, Qt::ControlModifier);
  QGuiApplication::clipboard()->clear();
  EXPECT_EQ(trigger->text(), "axé2b");
  EXPECT_EQ(trigger->cursorPosition(), 4);
}

TEST_F(SnippetEditorViewTest, ShortcodesAreExpandedInEveryFieldButTheTrigger) {
  open();
  for (QWidget* widget : std::initializer_list<QWidget*>{name, keywords, replacement}) {
    type(widget, "a:smile");
    EXPECT_EQ(OwnTextField(widget).replace({1, 6}, "😀"), AccessibilityStatus::success);
  }
  EXPECT_EQ(name->text(), "a😀");
  EXPECT_EQ(replacement->toPlainText(), "a😀");
  EXPECT_EQ(OwnTextField(trigger).role(), role::secureTextField);
}

TEST_F(SnippetEditorViewTest, PreviewsTheExpandedText) {
  pasteboard.copyElsewhere("copied {{clipboard}}");
  defaults.set(preferences::key::triggerCharacter, ";");
  open();
  fill();
  EXPECT_TRUE(shows<QLabel>(*sheet, ";t;"));
  EXPECT_EQ(pasteboard.stringReads, 0);
  type(replacement, " {{clipboard}} {{none}}");
  EXPECT_TRUE(shows<QLabel>(*sheet, "r copied {{clipboard}} {{none}}"));
  EXPECT_EQ(pasteboard.stringReads, 1);
}

}  // namespace
}  // namespace tessarin::ui
