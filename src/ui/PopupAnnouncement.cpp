#include "ui/PopupAnnouncement.h"

#include <utility>

#include "ui/PopupWindow.h"

namespace tessarin::ui {

QAccessibleInterface* PopupAnnouncement::parent() const {
  return QAccessible::queryAccessibleInterface(&popup());
}

QString PopupAnnouncement::text(QAccessible::Text which) const {
  return which == QAccessible::Name ? text_ : QString();
}

void PopupAnnouncement::say(const QString& text) {
  if (std::exchange(text_, text) == text) return;
  QAccessibleEvent renamed(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&renamed);
  QAccessibleEvent shown(this, QAccessible::ObjectShow);
  QAccessible::updateAccessibility(&shown);
}

}  // namespace tessarin::ui
