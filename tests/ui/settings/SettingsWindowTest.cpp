#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include "Matchers.h"
#include "ui/settings/GeneralSettingsTab.h"
#include "ui/settings/SettingsTest.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/style/PermissionRow.h"

namespace tessarin::ui {
namespace {

class SettingsWindowTest : public testing::SettingsTest {
 protected:
  QTabWidget* tabs() const { return settings.window()->findChild<QTabWidget*>(); }
  QList<QPushButton*> grants() const {
    QList<QPushButton*> found;
    for (auto* button : tabs()->currentWidget()->findChildren<QPushButton*>()) {
      if (button->text() == "Grant" && button->isVisible()) found << button;
    }
    return found;
  }

  SettingsWindow settings{services()};
};

TEST_F(SettingsWindowTest, opensOnTheFirstOfItsTabsUnlessItIsOpenUntilKeysCloseIt) {
  for (const QKeyCombination keys : {QKeyCombination(Qt::Key_Escape), Qt::CTRL | Qt::Key_W}) {
    settings.open();
    EXPECT_EQ(tabs()->currentIndex(), 0);
    tabs()->setCurrentIndex(3);
    settings.open();
    EXPECT_EQ(tabs()->currentIndex(), 3);
    ASSERT_TRUE(testing::showFocused(*settings.window(), *tabs()->tabBar()));
    QTest::keyClick(tabs()->tabBar(), keys.key(), keys.keyboardModifiers());
    EXPECT_FALSE(settings.window()->isVisible());
  }
}

TEST_F(SettingsWindowTest, everythingThatTakesTheKeyboardHasAName) {
  workspace.running = {{"org.example.a", "Alpha"}};
  store->addSnippet(mine("one"));
  settings.open();
  for (int index = 0; index < tabs()->count(); ++index) {
    tabs()->setCurrentIndex(index);
    for (const QWidget* widget : settings.window()->findChildren<QWidget*>()) {
      if (!widget->isVisible() || (widget->focusPolicy() & Qt::TabFocus) == 0) continue;
      QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
      const bool namesItsParts = qobject_cast<const QTabBar*>(widget) != nullptr;
      EXPECT_TRUE(namesItsParts || !heard->text(QAccessible::Name).isEmpty())
          << widget->metaObject()->className() << " on tab " << index;
    }
  }
}

TEST_F(SettingsWindowTest, permissionsAreLiveWhileTheyAreShown) {
  accessibility.trusted = false;
  inputMonitoring.granted = false;
  settings.open();
  tabs()->setCurrentIndex(5);
  ASSERT_EQ(grants().size(), 2);
  QTest::mouseClick(grants()[0], Qt::LeftButton);
  QTest::mouseClick(grants()[1], Qt::LeftButton);
  EXPECT_EQ(workspace.openedUrls, (std::vector<std::string>{Permissions::inputMonitoringSettingsUrl,
                                                            Permissions::accessibilitySettingsUrl}));
  EXPECT_EQ(accessibility.prompts, 0) << "it opens the page only";
  accessibility.trusted = true;
  queue.advance(std::chrono::milliseconds(2000));
  EXPECT_EQ(grants().size(), 1);
  inputMonitoring.granted = true;
  const auto waiting = queue.pending();
  tabs()->setCurrentIndex(0);
  EXPECT_EQ(queue.pending(), waiting - 1) << "no wake-up while it is hidden";
  tabs()->setCurrentIndex(5);
  EXPECT_EQ(grants().size(), 0) << "asked again when it is shown";
}

using testing::child;
using testing::shows;

class GeneralSettingsTabTest : public testing::SettingsTest {
 protected:
  void open() {
    tab = std::make_unique<GeneralSettingsTab>(services());
    tab->show();
  }
  QCheckBox* launch() const { return child<QCheckBox>(*tab, "Launch at login"); }
  void press(QWidget* widget) const { QTest::keyClick(widget, Qt::Key_Space); }

  std::unique_ptr<GeneralSettingsTab> tab;
};

TEST_F(GeneralSettingsTabTest, launchAtLoginFollowsTheLoginItemAndAFailureTurnsItBack) {
  open();
  EXPECT_FALSE(launch()->isChecked());
  EXPECT_THAT(loginItem.calls, ElementsAre()) << "showing it changes nothing";
  press(launch());
  press(launch());
  EXPECT_THAT(loginItem.calls, ElementsAre("register", "unregister"));
  EXPECT_THAT(log.lines(), ElementsAre());
  loginItem.calls.clear();
  loginItem.failure = "the folder is read-only";
  press(launch());
  EXPECT_FALSE(launch()->isChecked());
  EXPECT_THAT(loginItem.calls, ElementsAre("register", "unregister")) << "the correction is a change, too";
  EXPECT_THAT(log.lines(), SizeIs(2));
  loginItem.enabled = true;
  open();
  EXPECT_TRUE(launch()->isChecked());
}

TEST_F(GeneralSettingsTabTest, theTriggerCharacterIsShownEverywhereAtOnceAndMayBeNoneOfTheChoices) {
  open();
  EXPECT_TRUE(child<QRadioButton>(*tab, ":")->isChecked());
  for (const char* character : {";", "/", ":"}) {
    press(child<QRadioButton>(*tab, character));
    EXPECT_EQ(defaults.string("triggerCharacter"), character);
    EXPECT_TRUE(shows<QLabel>(*tab, QString("Type %1shortcode%1 to trigger autocomplete").arg(character)));
  }
  defaults.set("triggerCharacter", ";");
  EXPECT_TRUE(child<QRadioButton>(*tab, ";")->isChecked()) << "changed by another program";
  defaults.set("triggerCharacter", "!");
  for (const auto* choice : tab->findChildren<QRadioButton*>()) EXPECT_FALSE(choice->isChecked());
  EXPECT_TRUE(shows<QLabel>(*tab, "Type !shortcode! to trigger autocomplete"));
  press(child<QRadioButton>(*tab, "/"));
  EXPECT_EQ(defaults.string("triggerCharacter"), "/");
}

TEST_F(GeneralSettingsTabTest, boxesShowAndStoreTheirPreference) {
  open();
  const struct {
    const char* text;
    const char* preference;
    bool whenAbsent;
  } boxes[] = {{"Show menu bar icon", "showMenuBarIcon", true},
               {"Leave Return and Tab alone where a shortcode is unlikely", "confirmsOnlyWhatIsMeant", true},
               {"Only at the start of a word", "triggersOnlyAtWordStart", false}};
  for (const auto& [text, preference, whenAbsent] : boxes) {
    const auto* box = child<QCheckBox>(*tab, text);
    EXPECT_EQ(box->isChecked(), whenAbsent) << text;
    press(child<QCheckBox>(*tab, text));
    EXPECT_EQ(defaults.boolean(preference), !whenAbsent) << text;
    defaults.set(preference, whenAbsent);
    EXPECT_EQ(box->isChecked(), whenAbsent) << text;
  }
}
}  // namespace
}  // namespace tessarin::ui
