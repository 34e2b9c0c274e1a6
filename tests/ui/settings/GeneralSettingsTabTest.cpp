#include <QCheckBox>
#include <QLabel>
#include <QRadioButton>

#include "Matchers.h"
#include "ui/settings/GeneralSettingsTab.h"
#include "ui/settings/SettingsTest.h"

namespace tessarin::ui {
namespace {

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
  const char* line = "[Settings] Failed to update launch at login: the folder is read-only";
  EXPECT_THAT(log.lines(), ElementsAre(line, line));
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

}  // namespace
}  // namespace tessarin::ui
