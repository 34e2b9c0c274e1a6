#include <gtest/gtest.h>

#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QTest>

#include "platform/qt/TestApplication.h"
#include "ui/WindowShortcuts.h"

namespace tessarin::ui {
namespace {

TEST(WindowShortcutsTest, WorkInAWindowAndInADialogAboveItButLeaveAnOpenMenuItsKeys) {
  std::string done;
  const WindowShortcuts shortcuts{
      {.quit = [&] { done += "quit"; }, .openSettings = [&] { done += "settings"; }}};
  QWidget window;
  QLineEdit field(&window);
  ASSERT_TRUE(testing::showFocused(window, field));
  QDialog dialog(&window);
  QLineEdit fieldOfDialog(&dialog);
  dialog.open();
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    const char* done;
  } cases[] = {{Qt::Key_Q, Qt::ControlModifier, "quit"},
               {Qt::Key_Comma, Qt::ControlModifier, "settings"},
               {Qt::Key_Q, Qt::NoModifier, ""},
               {Qt::Key_Q, Qt::ControlModifier | Qt::AltModifier, ""}};
  for (QWidget* widget : {&field, &fieldOfDialog}) {
    for (const auto& [key, modifiers, expected] : cases) {
      SCOPED_TRACE(expected);
      done.clear();
      QTest::keyClick(widget, key, modifiers);
      EXPECT_EQ(done, expected);
    }
  }
  done.clear();
  QMenu menu;
  menu.addAction("entry");
  menu.popup({});
  QTest::keyClick(&menu, Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(done, "");
}

}  // namespace
}  // namespace tessarin::ui
