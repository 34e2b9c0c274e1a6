#include <gmock/gmock.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include "platform/qt/OwnWindowsAccessibility.h"
#include "platform/qt/TestApplication.h"
#include "support/FakeAccessibility.h"
#include "support/FakeInputMonitoring.h"
#include "support/FakeUserDefaults.h"
#include "support/FakeWorkspace.h"
#include "support/ManualMainQueue.h"
#include "ui/onboarding/OnboardingView.h"
#include "ui/onboarding/OnboardingWindow.h"
#include "ui/style/SymbolLabel.h"

namespace tessarin::ui {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using testing::eventuallyInLoop;
using ::testing::IsEmpty;
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
  std::vector<std::string> texts() const { return textsOf<QLabel>(); }
  std::vector<std::string> buttons() const { return textsOf<QPushButton>(); }
  std::vector<std::string> symbols() const {
    std::vector<std::string> result;
    for (const SymbolLabel* symbol : window.findChildren<SymbolLabel*>()) {
      if (symbol->isVisible()) result.push_back(symbol->symbol().toStdString());
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

TEST_F(OnboardingWindowTest, IsTitledClosableFixedAndInTheMiddle) {
  present();
  EXPECT_EQ(window.windowTitle(), "Welcome to Tessarin");
  EXPECT_EQ(window.size(), QSize(520, 480));
  EXPECT_EQ(window.minimumSize(), window.maximumSize());
  EXPECT_TRUE(window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  const QPoint away = window.geometry().center() - window.screen()->availableGeometry().center();
  EXPECT_LT(away.manhattanLength(), 4);
}

TEST_F(OnboardingWindowTest, ReturnWalksThroughAndFinishes) {
  present();
  EXPECT_THAT(texts(), ElementsAre("Welcome to Tessarin", "System-wide :shortcode: autocomplete for macOS",
                                   "Type shortcodes anywhere to instantly insert emoji, kaomoji, and custom "
                                   "snippets."));
  EXPECT_THAT(symbols(), ElementsAre("keyboard"));
  EXPECT_THAT(buttons(), ElementsAre("Continue"));
  press(Qt::Key_Return);
  EXPECT_THAT(texts(), Contains("Tessarin needs two permissions to work:"));
  press(Qt::Key_Return);
  EXPECT_THAT(texts(), ElementsAre("Try It Out", "Type :smile: in any text field",
                                   "Type the trigger character to start",
                                   "Type a shortcode like \"smile\" or \"wave\"",
                                   "Press Enter or type the trigger again to confirm"));
  EXPECT_THAT(symbols(), ElementsAre("text-cursor", "circle-1", "circle-2", "circle-3"));
  press(Qt::Key_Return);
  EXPECT_THAT(texts(), ElementsAre("You're All Set!",
                                   "Tessarin runs in your menu bar. Look for the keyboard icon to "
                                   "access settings, manage snippets, and more."));
  EXPECT_THAT(symbols(), ElementsAre("checkmark-circle"));
  EXPECT_THAT(buttons(), ElementsAre("Back", "Get Started"));
  EXPECT_FALSE(isDone());
  press(Qt::Key_Return);
  EXPECT_TRUE(isDone());
  EXPECT_FALSE(window.isVisible());
  EXPECT_THAT(defaults.writes, ElementsAre("hasCompletedOnboarding"));
}

TEST_F(OnboardingWindowTest, BackGoesAStepBackAndReturnOnAgain) {
  presentStep(3);
  click("Back");
  EXPECT_EQ(step(), 2);
  EXPECT_THAT(buttons(), ElementsAre("Back", "Continue"));
  click("Back");
  EXPECT_EQ(step(), 1);
  press(Qt::Key_Return);
  EXPECT_EQ(step(), 2);
}

TEST_F(OnboardingWindowTest, ClosedBeforeItsEndItBeginsAnew) {
  presentStep(2);
  press(Qt::Key_Escape);
  EXPECT_TRUE(window.isVisible());
  window.close();
  EXPECT_FALSE(isDone());
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(queue.pending(), 0U) << "nobody looks at the permissions any more";
  present();
  EXPECT_EQ(step(), 0);
  EXPECT_EQ(window.size(), QSize(520, 480));
  EXPECT_EQ(queue.pending(), 1U);
}

TEST_F(OnboardingWindowTest, PermissionsAreLive) {
  others.trusted = false;
  inputMonitoring.granted = false;
  presentStep(1);
  EXPECT_THAT(symbols(), ElementsAre("xmark-circle-fill", "minus-circle-fill"));
  inputMonitoring.granted = true;
  queue.advance(2000ms);
  EXPECT_THAT(symbols(), ElementsAre("checkmark-circle-fill", "minus-circle-fill"));
  EXPECT_THAT(buttons(), ElementsAre("Grant", "Back", "Continue"));
  others.trusted = true;
  queue.advance(2000ms);
  EXPECT_THAT(buttons(), ElementsAre("Back", "Continue"));
  others.trusted = false;
  queue.advance(2000ms);
  EXPECT_THAT(symbols(), ElementsAre("checkmark-circle-fill", "minus-circle-fill"));
}

TEST_F(OnboardingWindowTest, GrantLeadsToTheGrant) {
  others.trusted = false;
  inputMonitoring.granted = false;
  presentStep(1);
  click("Grant", 0);
  EXPECT_THAT(workspace.openedUrls, ElementsAre(Permissions::inputMonitoringSettingsUrl));
  EXPECT_EQ(others.prompts, 0);
  click("Grant", 1);
  EXPECT_EQ(others.prompts, 1);
}

TEST_F(OnboardingWindowTest, NamesTheTriggerInForce) {
  defaults.set("triggerCharacter", "/");
  presentStep(2);
  EXPECT_THAT(texts(), Contains("Type /smile/ in any text field"));
  defaults.set("triggerCharacter", ";");
  EXPECT_THAT(texts(), Contains("Type ;smile; in any text field"));
}

TEST_F(OnboardingWindowTest, TheExerciseTakesTextAtOnceAndIsExpandedIn) {
  presentStep(2);
  QTest::keyClicks(QApplication::focusWidget(), "a:smile");
  OwnWindowsAccessibility accessibility(others);
  const auto application =
      readAttribute<ElementRef>(accessibility, accessibility.systemWide(), attribute::focusedApplication);
  const auto field = readAttribute<ElementRef>(accessibility, *application, attribute::focusedElement);
  EXPECT_EQ(readAttribute<TextRange>(accessibility, *field, attribute::selectedTextRange), (TextRange{7, 0}));
  accessibility.setAttribute(*field, attribute::selectedTextRange, TextRange{1, 6});
  accessibility.setAttribute(*field, attribute::selectedText, std::string("😄"));
  EXPECT_EQ(window.findChild<QLineEdit*>()->text(), "a😄");
  EXPECT_EQ(step(), 2);
}

TEST_F(OnboardingWindowTest, LargeTypeIsNotCutOff) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSizeF(17);
  QApplication::setFont(large);
  presentStep(2);
  QApplication::processEvents();
  const auto* field = window.findChild<QLineEdit*>();
  const auto* page = field->parentWidget()->parentWidget();
  const QRect place(field->mapTo(page, QPoint()), field->size());
  EXPECT_TRUE(page->rect().contains(place)) << place.bottom() << " of " << page->height();
  EXPECT_EQ(window.size(), QSize(520, 480));
  QApplication::setFont(before);
}

}  // namespace
}  // namespace tessarin::ui
