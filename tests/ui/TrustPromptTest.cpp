#include <QAbstractButton>
#include <QApplication>
#include <QTest>

#include "Matchers.h"
#include "platform/qt/TestApplication.h"
#include "ui/TrustPrompt.h"

namespace tessarin::ui {
namespace {

using testing::eventuallyInLoop;

class TrustPromptTest : public ::testing::Test {
 protected:
  static QMessageBox* dialog() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<QMessageBox*>(widget);
      if (box != nullptr && box->isVisible()) return box;
    }
    return nullptr;
  }
  QMessageBox& ask(PromptManner manner = PromptManner::inFront) {
    prompt.ask(manner);
    return *dialog();
  }

  std::vector<bool> answers;
  TrustPrompt prompt{[this](bool isTrusted) { answers.push_back(isTrusted); }};
};

TEST_F(TrustPromptTest, TakesTheKeyboardOnlyWhenTheUserAsksForIt) {
  QWidget welcome;
  ASSERT_TRUE(testing::showFocused(welcome, welcome));
  QMessageBox& unasked = ask(PromptManner::unobtrusive);
  EXPECT_TRUE(unasked.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
  EXPECT_TRUE(unasked.testAttribute(Qt::WA_ShowWithoutActivating));
  EXPECT_EQ(unasked.windowModality(), Qt::NonModal);
  EXPECT_TRUE(welcome.isActiveWindow());
  unasked.showMinimized();
  EXPECT_EQ(&ask(PromptManner::unobtrusive), &unasked);
  EXPECT_FALSE(unasked.isMinimized());
  EXPECT_EQ(&ask(PromptManner::inFront), &unasked);
  EXPECT_TRUE(eventuallyInLoop([&] { return unasked.isActiveWindow(); }));
}

TEST_F(TrustPromptTest, OnlyAPlainYesIsAYes) {
  QTest::keyClick(&ask(), Qt::Key_Return);
  EXPECT_THAT(answers, ElementsAre(false));
  QTest::keyClick(&ask(), Qt::Key_Escape);
  EXPECT_THAT(answers, ElementsAre(false, false));
  ask().close();
  EXPECT_THAT(answers, ElementsAre(false, false)) << "no answer";
  QMessageBox& last = ask();
  for (QAbstractButton* button : last.buttons()) {
    if (last.buttonRole(button) == QMessageBox::AcceptRole) QTest::mouseClick(button, Qt::LeftButton);
  }
  EXPECT_THAT(answers, ElementsAre(false, false, true));
  EXPECT_EQ(dialog(), nullptr);
}

}  // namespace
}  // namespace tessarin::ui
