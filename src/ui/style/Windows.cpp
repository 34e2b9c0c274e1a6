#include "ui/style/Windows.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include "platform/qt/WindowActivation.h"

namespace tessarin::ui {
namespace {

/// From the edges of the screen, with room for what the window manager draws around the window.
constexpr int cornerMargin = 24;

/// Of the screen on which the pointer is; empty without a screen.
QRect roomForWindows() {
  const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
  if (screen == nullptr) screen = QGuiApplication::primaryScreen();
  return screen != nullptr ? screen->availableGeometry() : QRect();
}

}  // namespace

void centreOnScreen(QWidget& window) {
  const QRect room = roomForWindows();
  if (room.isEmpty()) return;
  QRect frame({}, window.size());
  frame.moveCenter(room.center());
  window.move(frame.topLeft());
}

void putInCorner(QWidget& window) {
  const QRect room = roomForWindows();
  if (room.isEmpty()) return;
  QRect frame({}, window.size());
  frame.moveTopRight(room.topRight() + QPoint(-cornerMargin, cornerMargin));
  window.move(frame.topLeft());
}

void bringToFront(QWidget& window) {
  window.setAttribute(Qt::WA_ShowWithoutActivating, false);
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  window.raise();
  window.activateWindow();
  requestActivation(window);
}

void showWithoutKeyboard(QWidget& window) {
  window.setAttribute(Qt::WA_ShowWithoutActivating);
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.show();
  requestRaise(window);
}

}  // namespace tessarin::ui
