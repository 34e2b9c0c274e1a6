#pragma once

#include "ui/settings/AppListSettingsTab.h"

namespace tessarin::ui {

/// The applications in which expansion is off.
class BlockedAppsSettingsTab final : public AppListSettingsTab {
  Q_OBJECT

 public:
  explicit BlockedAppsSettingsTab(const SettingsServices& services, QWidget* parent = nullptr);
};

}  // namespace tessarin::ui
