#pragma once

#include "ui/settings/AppListSettingsTab.h"

namespace tessarin::ui {

/// The applications that get their text by paste.
class PasteFallbackAppsSettingsTab final : public AppListSettingsTab {
  Q_OBJECT

 public:
  explicit PasteFallbackAppsSettingsTab(const SettingsServices& services, QWidget* parent = nullptr);
};

}  // namespace tessarin::ui
