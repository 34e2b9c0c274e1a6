#include "ui/settings/PasteFallbackAppsSettingsTab.h"

namespace tessarin::ui {

PasteFallbackAppsSettingsTab::PasteFallbackAppsSettingsTab(const SettingsServices& services, QWidget* parent)
    : AppListSettingsTab(services,
                         AppList(services.userDefaults, preferences::key::pasteFallbackApps,
                                 preferences::defaultPasteFallbackApps()),
                         {tr("Paste Mode Apps"),
                          tr("These apps use clipboard paste instead of direct text insertion. Terminal "
                             "emulators, web browsers, and "
                             "other apps where direct insertion doesn't work should be listed here."),
                          tr("e.g., com.example.terminal")},
                         parent) {}

}  // namespace tessarin::ui
