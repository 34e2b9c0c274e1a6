#include <QApplication>
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

TEST(QtStatusBar, TheOpenMenuAnswersToTheKeysOfItsItems) {
  XClient tray(std::getenv("DISPLAY"));
  tray.becomeTray();
  QtStatusBar statusBar;
  statusBar.createItem("Tessarin");
  std::string chosen;
  statusBar.setMenu({{.title = "Heading", .keyEquivalent = "h", .action = nullptr},
                     {.title = "Settings...", .keyEquivalent = ",", .action = [&] { chosen += "settings "; }},
                     {.title = "Quit", .keyEquivalent = "q", .action = [&] { chosen += "quit "; }}});
  ASSERT_TRUE(eventuallyInLoop([] { return icon() != nullptr; }));
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

}  // namespace
}  // namespace tessarin::testing
