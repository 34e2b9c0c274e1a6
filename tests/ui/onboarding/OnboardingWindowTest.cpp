#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "Matchers.h"
#include "platform/qt/OwnWindowsAccessibility.h"
#include "platform/qt/TestApplication.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"
#include "support/FakeUserDefaults.h"
#include "support/ManualMainQueue.h"
#include "ui/TrustPrompt.h"
#include "ui/onboarding/OnboardingView.h"
#include "ui/onboarding/OnboardingWindow.h"

namespace tessarin::ui {
namespace {

using testing::eventuallyInLoop;
using std::chrono_literals::operator""ms;

class OnboardingWindowTest : public ::testing::Test {
 protected:
  void present() {
    window.present();
    ASSERT_TRUE(eventuallyInLoop([this] { return QApplication::activeWindow() == &window; }));
  }
  void presentStep(int step) {
    present();
    while (this->step() < step) click("Continue");
  }
  int step() const { return window.findChild<OnboardingView*>()->currentStep(); }
  template <class Widget>
  std::vector<std::string> textsOf() const {
    std::vector<std::string> result;
    for (const Widget* widget : window.findChildren<Widget*>()) {
      if (widget->isVisible()) result.push_back(widget->text().toStdString());
    }
    return result;
  }
  void click(const QString& text, int which = 0) {
    for (QPushButton* button : window.findChildren<QPushButton*>()) {
      if (button->isVisible() && button->text() == text && which-- == 0) {
        return QTest::mouseClick(button, Qt::LeftButton);
      }
    }
    FAIL() << "no button " << text.toStdString();
  }
  /// To whatever has the keyboard.
  static void press(Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); }
  bool isDone() const { return defaults.boolean("hasCompletedOnboarding").value_or(false); }

  testing::FakeAccessibility others;
  testing::FakeInputMonitoring inputMonitoring;
  testing::FakeWorkspace workspace;
  testing::FakeUserDefaults defaults;
  testing::ManualMainQueue queue;
  OnboardingWindow window{Permissions(others, inputMonitoring, workspace), defaults, queue};
};

TEST_F(OnboardingWindowTest, BackGoesAStepBackAndClosedBeforeItsEndItBeginsAnew) {
  presentStep(3);
  click("Back");
  EXPECT_EQ(step(), 2);
  press(Qt::Key_Return);
  EXPECT_EQ(step(), 3);
  click("Back");
  press(Qt::Key_Escape);
  EXPECT_TRUE(window.isVisible());
  window.close();
  EXPECT_FALSE(isDone());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(queue.pending(), 0U) << "nobody looks at the permissions any more";
  present();
  EXPECT_EQ(step(), 0);
  EXPECT_EQ(queue.pending(), 1U);
}

TEST_F(OnboardingWindowTest, PermissionsAreLive) {
  others.trusted = false;
  inputMonitoring.granted = false;
  presentStep(1);
  click("Grant", 0);
  EXPECT_THAT(workspace.openedUrls, ElementsAre(Permissions::inputMonitoringSettingsUrl));
  EXPECT_EQ(others.prompts, 0);
  click("Grant", 1);
  EXPECT_EQ(others.prompts, 1);
  EXPECT_EQ(others.lastPrompt, PromptManner::inFront);
  inputMonitoring.granted = true;
  queue.advance(2000ms);
  EXPECT_THAT(textsOf<QPushButton>(), ElementsAre("Grant", "Back", "Continue"));
  others.trusted = true;
  queue.advance(2000ms);
  EXPECT_THAT(textsOf<QPushButton>(), ElementsAre("Back", "Continue"));
}

TEST(TrustPrompt, OnlyAPlainYesIsAYes) {
  std::vector<bool> answers;
  TrustPrompt prompt([&](bool isTrusted) { answers.push_back(isTrusted); });
  const auto dialog = []() -> QMessageBox* {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<QMessageBox*>(widget);
      if (box != nullptr && box->isVisible()) return box;
    }
    return nullptr;
  };
  const auto ask = [&]() -> QMessageBox& {
    prompt.ask(PromptManner::inFront);
    return *dialog();
  };
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
