#pragma once

#include <QWidget>

#include "base/Subscription.h"
#include "ui/settings/SettingsServices.h"

namespace tessarin::ui {

class PermissionRow;

/// The last tab: whether both permissions are granted, as it stands while the tab is shown.
class PermissionsSettingsTab final : public QWidget {
  Q_OBJECT

 public:
  explicit PermissionsSettingsTab(const SettingsServices& services, QWidget* parent = nullptr);

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;

 private:
  void refresh();

  SettingsServices services_;
  PermissionRow* inputMonitoring_;
  PermissionRow* accessibility_;
  Subscription timer_;
};

}  // namespace tessarin::ui
