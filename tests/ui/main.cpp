#include <gmock/gmock.h>

#include <QApplication>
#include <cstdlib>

#include "support/desktop/PrivateDisplay.h"
#include "support/desktop/PrivateSession.h"

/// The tests of windows run on an X server and in a session of their own, with assistive technologies at
/// work.
int main(int argc, char** argv) {
  ::testing::InitGoogleMock(&argc, argv);
  const tessarin::testing::PrivateDisplay display;
  const tessarin::testing::PrivateSession session;
  ::setenv("DISPLAY", display.name().c_str(), 1);
  ::setenv("DBUS_SESSION_BUS_ADDRESS", session.busAddress().c_str(), 1);
  ::setenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1", 1);
  ::setenv("QT_QPA_PLATFORM", "xcb", 1);
  const QApplication application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
