#pragma once

#include <QAccessibleWidget>

#include "platform/PopupPresenter.h"
#include "ui/PopupAnnouncement.h"
#include "ui/PopupListAccessible.h"

namespace tessarin::ui {

/// The popup as assistive technologies see it: a list of matches, one of skin tones while the picker is open,
/// and what a screen reader shall say. Never takes or reports a focus: that stays where the user types.
class PopupAccessible final : public QAccessibleWidget {
  Q_DECLARE_TR_FUNCTIONS(tessarin::ui::PopupAccessible)

 public:
  explicit PopupAccessible(PopupWindow& window);

  /// From now on every popup window has one. May be called again.
  static void install();
  static PopupAccessible* of(PopupWindow& window);

  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override { return nullptr; }

  /// Tells what is different from when it last told: other rows, another selection, the picker.
  void tellChanges();

 private:
  std::vector<QAccessibleInterface*> children() const;
  PopupListAccessible& activeList() const;
  void renewItems(const PopupContent& previous);
  void tellSelection(const PopupListAccessible& list, int previous);

  PopupWindow& window_;
  RegisteredPart<PopupListAccessible> rows_;
  RegisteredPart<PopupListAccessible> variants_;
  RegisteredPart<PopupAnnouncement> announcement_;
  PopupContent told_;
};

}  // namespace tessarin::ui
