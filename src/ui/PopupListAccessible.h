#pragma once

#include "ui/PopupItemAccessible.h"
#include "ui/PopupPartAccessible.h"

namespace tessarin::ui {

/// A list of the popup as assistive technologies see it.
class PopupListAccessible final : public PopupPartAccessible {
  Q_DECLARE_TR_FUNCTIONS(tessarin::ui::PopupListAccessible)

 public:
  PopupListAccessible(PopupWindow& window, PopupList list) : PopupPartAccessible(window), list_(list) {}

  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QString text(QAccessible::Text which) const override;
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::List; }
  QAccessible::State state() const override;

  int selectedIndex() const;
  /// The items stand for other content from now on: whoever holds one sees that it has gone.
  void renewItems() { items_.clear(); }

 private:
  PopupList list_;
  mutable std::vector<RegisteredPart<PopupItemAccessible>> items_;  ///< made when asked for
};

}  // namespace tessarin::ui
