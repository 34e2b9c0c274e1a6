#pragma once

#include "ui/PopupPartAccessible.h"

namespace tessarin::ui {

/// What a screen reader shall say. The keyboard focus stays where the user types, and screen readers speak of
/// lists elsewhere only when told by a notification.
class PopupAnnouncement final : public PopupPartAccessible {
 public:
  explicit PopupAnnouncement(PopupWindow& window) : PopupPartAccessible(window) {}

  QAccessibleInterface* parent() const override;
  QString text(QAccessible::Text which) const override;
  QRect rect() const override { return {}; }
  QAccessible::Role role() const override { return QAccessible::Notification; }
  QAccessible::State state() const override { return {}; }

  /// Says it now, unless it was what was said last.
  void say(const QString& text);
  /// The same text will be said again.
  void forget() { text_.clear(); }

 private:
  QString text_;
};

}  // namespace tessarin::ui
