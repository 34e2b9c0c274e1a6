#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "Matchers.h"
#include "ui/settings/AppListSettingsTab.h"
#include "ui/settings/BlockedAppsSettingsTab.h"
#include "ui/settings/PasteFallbackAppsSettingsTab.h"
#include "ui/settings/RunningAppsGrid.h"
#include "ui/settings/SettingsTest.h"

namespace tessarin::ui {
namespace {

using testing::child;

class AppListSettingsTabTest : public testing::SettingsTest {
 protected:
  void open() {
    tab = std::make_unique<BlockedAppsSettingsTab>(services());
    tab->resize(600, 440);
    tab->show();
  }

  std::vector<std::string> listed() const {
    std::vector<std::string> found;
    for (int row = 0; row < list()->count(); ++row) {
      found.push_back(list()->item(row)->data(Qt::AccessibleTextRole).toString().toStdString());
    }
    return found;
  }

  /// The applications that can be added by a click, in their order.
  std::vector<std::string> offered() const {
    std::vector<std::string> found;
    for (const QPushButton* button : tab->findChildren<QPushButton*>()) {
      const QString name = button->accessibleName();
      if (name.startsWith("Add ")) found.push_back(name.mid(4).toStdString());
    }
    return found;
  }

  void click(const QString& accessibleName) const {
    for (auto* button : tab->findChildren<QAbstractButton*>()) {
      if (button->accessibleName() != accessibleName) continue;
      QTest::mouseClick(button, Qt::LeftButton);
      return settle();
    }
    ADD_FAILURE() << "no button " << accessibleName.toStdString();
  }

  std::vector<std::string> stored() const {
    return defaults.stringArray("blacklistedApps").value_or(std::vector<std::string>());
  }

  QListWidget* list() const { return tab->findChild<QListWidget*>(); }

  /// What has the keyboard, once the tab has it at all.
  QString focused() const {
    const QWidget* widget = QApplication::focusWidget();
    return widget ? widget->accessibleName() : QString();
  }
  void openFocused() {
    open();
    ASSERT_TRUE(testing::showFocused(*tab, *list()));
  }
  void press(Qt::Key key) const {
    QTest::keyClick(QApplication::focusWidget(), key);
    settle();
  }
  static void settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  std::unique_ptr<AppListSettingsTab> tab;
};

TEST_F(AppListSettingsTabTest, listsTheStoredAndTheBuiltInOnes) {
  const auto& builtIn = preferences::defaultBlockedApps();
  defaults.set("blacklistedApps", std::vector<std::string>{"org.example.b", *builtIn.begin()});
  open();
  EXPECT_EQ(listed().size(), builtIn.size() + 1);
  tab = std::make_unique<PasteFallbackAppsSettingsTab>(services());
  EXPECT_THAT(listed(), ::testing::UnorderedElementsAreArray(preferences::defaultPasteFallbackApps()));
}

TEST_F(AppListSettingsTabTest, addsWhatIsTyped) {
  open();
  auto* field = tab->findChild<QLineEdit*>();
  auto* add = child<QPushButton>(*tab, "Add");
  QTest::keyClicks(field, " \t");
  EXPECT_FALSE(add->isEnabled());
  const auto before = listed().size();
  for (int time = 0; time < 2; ++time) {
    field->setText("  com.example.app\t");
    QTest::mouseClick(add, Qt::LeftButton);
    EXPECT_EQ(listed().size(), before + 1) << "once only";
  }
  EXPECT_THAT(stored(), Contains("com.example.app"));
}

TEST_F(AppListSettingsTabTest, offersTheRunningApplicationsThatAreNotListed) {
  const std::string builtIn = *preferences::defaultBlockedApps().begin();
  workspace.running = {
      {"org.example.b", "beta"}, {builtIn, "Listed"}, {"org.example.a", "Alpha"}, {"", "Nameless"}};
  open();
  EXPECT_THAT(offered(), ElementsAre("Alpha", "beta"));
  click("Add Alpha");
  EXPECT_THAT(stored(), Contains("org.example.a"));
  click(QString("Remove %1").arg(QString::fromStdString(builtIn)));
  EXPECT_THAT(offered(), ElementsAre("beta", "Listed"));
  EXPECT_THAT(listed(), Not(Contains(builtIn)));
  EXPECT_EQ(stored(), listed()) << "the whole list is written";
  open();
  EXPECT_THAT(listed(), Contains(builtIn)) << "removing lasts until the list is loaded again";
}

TEST_F(AppListSettingsTabTest, theKeyboardStaysInItsPlaceWhenItsRowGoes) {
  defaults.set("blacklistedApps", std::vector<std::string>{"org.example.a", "org.example.b"});
  workspace.running = {{"org.example.c", "Gamma"}, {"org.example.d", "Delta"}};
  openFocused();
  for (int time = 0; time < 3; ++time) press(Qt::Key_Tab);
  for (const char* name : {"Remove org.example.a", "Remove org.example.b", "Remove com.tinyspeck.slackmacgap",
                           "Remove com.apple.MobileSMS", "Blocked Apps"}) {
    EXPECT_EQ(focused(), name);
    if (list()->count() > 0) press(Qt::Key_Space);
  }
  EXPECT_TRUE(defaults.stringArray("blacklistedApps")->empty());
  press(Qt::Key_Tab);
  EXPECT_EQ(focused(), "Add Delta");
  press(Qt::Key_Space);
  EXPECT_EQ(focused(), "Add Gamma");
}

}  // namespace
}  // namespace tessarin::ui
