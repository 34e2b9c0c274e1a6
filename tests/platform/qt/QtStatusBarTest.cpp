#include <QApplication>
#include <QPalette>
#include <QTest>
#include <cstdlib>

#include "platform/qt/QtStatusBar.h"
#include "platform/qt/TestApplication.h"
#include "support/FakeStatusBar.h"
#include "support/StatusBarSuite.h"
#include "support/desktop/XClient.h"

namespace tessarin::testing {
namespace {

using ui::QtStatusBar;

/// In an old-style tray, where it is a widget of ours.
QWidget* icon() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible() && widget->inherits("QSystemTrayIconSys")) return widget;
  }
  return nullptr;
}
QMenu* menu() {
  return qobject_cast<QMenu*>(QApplication::activePopupWidget());
}

class TrayWorld {
 public:
  TrayWorld() { tray_.becomeTray(); }
  StatusBar& statusBar() { return statusBar_; }
  bool isShown() {
    QTest::qWait(100);
    return icon() != nullptr;
  }
  std::vector<std::string> openMenu() {
    QTest::mouseClick(icon(), Qt::LeftButton);
    std::vector<std::string> seen;
    if (menu() == nullptr) return seen;
    for (const QAction* action : menu()->actions()) {
      const std::string title = action->isSeparator() ? "-" : action->text().toStdString();
      seen.push_back(action->isSeparator() || action->isEnabled() ? title : "(" + title + ")");
    }
    return seen;
  }
  void choose(const std::string& title) {
    ASSERT_NE(menu(), nullptr);
    for (QAction* action : menu()->actions()) {
      if (action->text().toStdString() != title) continue;
      QTest::mouseClick(menu(), Qt::LeftButton, {}, menu()->actionGeometry(action).center());
      return;
    }
    ADD_FAILURE() << "not in the menu: " << title;
  }

 private:
  XClient tray_{std::getenv("DISPLAY")};
  QtStatusBar statusBar_;
};

class FakeTrayWorld {
 public:
  StatusBar& statusBar() { return fake_; }
  bool isShown() const { return !fake_.descriptions.empty() && fake_.visible; }
  std::vector<std::string> openMenu() {
    fake_.openMenu();
    std::vector<std::string> seen;
    for (const MenuItem& item : fake_.menus.back()) {
      const std::string title = item.isSeparator() ? "-" : item.title;
      seen.push_back(item.isSeparator() || item.action ? title : "(" + title + ")");
    }
    return seen;
  }
  void choose(const std::string& title) { fake_.choose(title); }

 private:
  FakeStatusBar fake_;
};

class QtStatusBarTest : public ::testing::Test {
 protected:
  QtStatusBarTest() {
    tray.becomeTray();
    statusBar.onMenuOpening([this] { ++openings; });
    statusBar.createItem("Tessarin");
    statusBar.setMenu(
        {{.title = "Heading", .keyEquivalent = "h", .action = nullptr},
         {.title = "Settings...", .keyEquivalent = ",", .action = [this] { chosen += "settings "; }},
         {.title = "Quit", .keyEquivalent = "q", .action = [this] { chosen += "quit "; }}});
    EXPECT_TRUE(eventuallyInLoop([] { return icon() != nullptr; }));
  }

  /// Edges are softened, so no colour is there quite pure.
  static bool isReddish() {
    const QImage picture = icon()->grab().toImage();
    for (int y = 0; y < picture.height(); ++y) {
      for (int x = 0; x < picture.width(); ++x) {
        const QColor color = picture.pixelColor(x, y);
        if (color.red() > color.green() + 100) return true;
      }
    }
    return false;
  }

  XClient tray{std::getenv("DISPLAY")};
  QtStatusBar statusBar;
  int openings = 0;
  std::string chosen;
};

TEST_F(QtStatusBarTest, ALeftClickOpensTheMenuAtThePointer) {
  QCursor::setPos(200, 100);
  QTest::mouseClick(icon(), Qt::LeftButton);
  ASSERT_NE(menu(), nullptr);
  EXPECT_EQ(openings, 1);
  EXPECT_TRUE(menu()->geometry().adjusted(-1, -1, 1, 1).contains(200, 100));
  QTest::keyClick(menu(), Qt::Key_Escape);
  EXPECT_EQ(menu(), nullptr);
  QTest::mouseClick(icon(), Qt::MiddleButton);
  EXPECT_EQ(menu(), nullptr);
}

TEST_F(QtStatusBarTest, TheOpenMenuAnswersToTheKeysOfItsItems) {
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* chosen;
  } cases[] = {{Qt::Key_Q, Qt::NoModifier, "quit "},
               {Qt::Key_Q, Qt::ControlModifier, "quit "},
               {Qt::Key_Comma, Qt::NoModifier, "settings "},
               {Qt::Key_Q, Qt::AltModifier, ""},
               {Qt::Key_H, Qt::NoModifier, ""},
               {Qt::Key_X, Qt::NoModifier, ""}};
  for (const auto& [key, modifiers, expected] : cases) {
    SCOPED_TRACE(key);
    chosen.clear();
    QTest::mouseClick(icon(), Qt::LeftButton);
    ASSERT_NE(menu(), nullptr);
    QTest::keyClick(menu(), key, modifiers);
    EXPECT_EQ(chosen, expected);
    EXPECT_TRUE(chosen.empty() || menu() == nullptr);
    if (menu() != nullptr) menu()->close();
  }
}

TEST_F(QtStatusBarTest, TheSymbolFollowsTheColoursOfTheDesktop) {
  const QPalette before = QApplication::palette();
  QPalette other = before;
  other.setColor(QPalette::WindowText, Qt::red);
  EXPECT_FALSE(isReddish());
  QApplication::setPalette(other);
  EXPECT_TRUE(eventuallyInLoop(isReddish));
  QApplication::setPalette(before);
}

INSTANTIATE_TYPED_TEST_SUITE_P(Tray, StatusBarSuite, ::testing::Types<TrayWorld>);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, StatusBarSuite, ::testing::Types<FakeTrayWorld>);

}  // namespace

}  // namespace tessarin::testing
