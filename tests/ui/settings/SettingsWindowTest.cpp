#include <QAccessible>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>

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

TEST_F(SettingsWindowTest, showsSixTabsAndOpensOnTheFirst) {
  settings.open();
  QWidget* first = settings.window();
  ASSERT_EQ(tabs()->count(), 6);
  tabs()->setCurrentIndex(3);
  settings.open();
  EXPECT_EQ(settings.window(), first);
  EXPECT_EQ(tabs()->currentIndex(), 3);
  first->close();
  settings.open();
  EXPECT_EQ(tabs()->currentIndex(), 0);
}

TEST_F(SettingsWindowTest, keysCloseIt) {
  const QKeyCombination cases[] = {Qt::Key_Escape, Qt::CTRL | Qt::Key_W};
  for (const QKeyCombination keys : cases) {
    settings.open();
    ASSERT_TRUE(testing::showFocused(*settings.window(), *tabs()->tabBar()));
    QTest::keyClick(tabs()->tabBar(), keys.key(), keys.keyboardModifiers());
    EXPECT_FALSE(settings.window()->isVisible());
  }
}

TEST_F(SettingsWindowTest, everythingThatTakesTheKeyboardHasAName) {
  workspace.running = {{"org.example.a", "Alpha", false}};
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

}  // namespace
}  // namespace tessarin::ui
