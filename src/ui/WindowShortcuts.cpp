#include "ui/WindowShortcuts.h"

#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace tessarin::ui {

WindowShortcuts::WindowShortcuts(Actions actions) : actions_(std::move(actions)) {
  qApp->installEventFilter(this);
}

// Not shortcuts of the toolkit: each of those belongs to one window, and rests while a dialog stands above
// it.
bool WindowShortcuts::eventFilter(QObject*, QEvent* event) {
  // An open menu has the keys to itself.
  if (event->type() != QEvent::KeyPress || QApplication::activePopupWidget() != nullptr) return false;
  const QKeyCombination keys = static_cast<const QKeyEvent*>(event)->keyCombination();
  const bool quits = keys == (Qt::CTRL | Qt::Key_Q);
  const bool opensSettings = keys == (Qt::CTRL | Qt::Key_Comma);
  if (quits) actions_.quit();
  if (opensSettings) actions_.openSettings();
  return quits || opensSettings;
}

}  // namespace tessarin::ui
