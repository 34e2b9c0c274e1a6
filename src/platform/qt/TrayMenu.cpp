#include "platform/qt/TrayMenu.h"

#include <QAction>
#include <QKeyEvent>

namespace tessarin::ui {
namespace {

bool answersTo(const QAction& action, const QKeyEvent& event) {
  if (!action.isEnabled() || action.shortcut().isEmpty()) return false;
  const QKeyCombination keys = action.shortcut()[0];
  return keys.key() == event.key() &&
         (event.modifiers() == Qt::NoModifier || event.modifiers() == keys.keyboardModifiers());
}

}  // namespace

void TrayMenu::keyPressEvent(QKeyEvent* event) {
  for (QAction* action : actions()) {
    if (!answersTo(*action, *event)) continue;
    close();
    return action->trigger();
  }
  QMenu::keyPressEvent(event);
}

}  // namespace tessarin::ui
