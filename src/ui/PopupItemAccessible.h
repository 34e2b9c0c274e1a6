#pragma once

#include "ui/PopupPartAccessible.h"

namespace tessarin::ui {

class PopupListAccessible;

/// A match or a skin tone of the popup as assistive technologies see it. To press it is to click it.
class PopupItemAccessible final : public PopupPartAccessible, public QAccessibleActionInterface {
  Q_DECLARE_TR_FUNCTIONS(tessarin::ui::PopupItemAccessible)

 public:
  PopupItemAccessible(PopupWindow& window, const PopupListAccessible& owner, PopupList list, int index)
      : PopupPartAccessible(window), owner_(owner), list_(list), index_(index) {}

  bool isValid() const override;
  QAccessibleInterface* parent() const override;
  QString text(QAccessible::Text which) const override;
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::ListItem; }
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override { return {pressAction()}; }
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString& /*name*/) const override { return {}; }

 private:
  QString name() const;
  QString description() const;

  const PopupListAccessible& owner_;
  PopupList list_;
  int index_;
};

}  // namespace tessarin::ui
