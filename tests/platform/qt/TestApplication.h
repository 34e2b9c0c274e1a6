#pragma once

#include <QApplication>
#include <QWidget>
#include <cstdlib>

#include "support/Eventually.h"

namespace tessarin::testing {

/// Windows need an application object: the test program's own, or else one without a display.
inline void ensureApplication() {
  if (qApp != nullptr) return;
  ::setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static int count = 1;
  static char name[] = "ui_tests";
  static char* arguments[] = {name, nullptr};
  static const QApplication application(count, arguments);
}

bool eventuallyInLoop(auto condition) {
  return eventually(condition, [] { QCoreApplication::processEvents(); });
}

/// Shows the window and waits until the widget has the keyboard focus.
inline bool showFocused(QWidget& window, QWidget& widget) {
  window.show();
  window.activateWindow();
  widget.setFocus();
  return eventuallyInLoop([&widget] { return widget.hasFocus(); });
}

}  // namespace tessarin::testing
