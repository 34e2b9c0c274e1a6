#include "ui/PopupPartAccessible.h"

#include "ui/PopupWindow.h"

namespace tessarin::ui {

QWindow* PopupPartAccessible::window() const {
  return window_.windowHandle();
}

QAccessibleInterface* PopupPartAccessible::childAt(int x, int y) const {
  for (int index = 0; index < childCount(); ++index) {
    QAccessibleInterface* candidate = child(index);
    if (candidate->rect().contains(x, y)) return candidate;
  }
  return nullptr;
}

QRect PopupPartAccessible::onScreen(const QRectF& part) const {
  return part.toRect().translated(window_.mapToGlobal(QPoint(0, 0)));
}

}  // namespace tessarin::ui
