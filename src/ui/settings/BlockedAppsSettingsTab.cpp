#include "ui/settings/BlockedAppsSettingsTab.h"

namespace tessarin::ui {

BlockedAppsSettingsTab::BlockedAppsSettingsTab(const SettingsServices& services, QWidget* parent)
    : AppListSettingsTab(
          services,
          AppList(services.userDefaults, preferences::key::blacklistedApps,
                  preferences::defaultBlockedApps()),
          {tr("Blocked Apps"),
           tr("Tessarin is disabled in these apps. Apps with their own emoji picker (like Slack) are "
              "blocked by default."),
           tr("e.g., com.tinyspeck.slackmacgap")},
          parent) {}

}  // namespace tessarin::ui
