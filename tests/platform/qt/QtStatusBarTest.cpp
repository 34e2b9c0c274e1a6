#include <QApplication>
#include <QPalette>
#include <QTest>
#include <cstdlib>

#include "platform/qt/QtStatusBar.h"
#include "platform/qt/TestApplication.h"
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

class QtStatusBarTest : public ::testing::Test {
 protected:
  QtStatusBarTest() {
    tray.becomeTray();
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
  std::string chosen;
};

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

}  // namespace
}  // namespace tessarin::testing
