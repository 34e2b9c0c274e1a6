#include "ui/style/Windows.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "platform/qt/WindowActivation.h"

namespace tessarin::ui {

void centreOnScreen(QWidget& window) {
  const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  QRect frame({}, window.size());
  frame.moveCenter(screen->availableGeometry().center());
  window.move(frame.topLeft());
}

void bringToFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
  requestActivation(window);
}

}  // namespace tessarin::ui
