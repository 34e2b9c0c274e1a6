#include "menu/MenuBarManager.h"

#include <utility>

#include "base/Translate.h"
#include "input/Preferences.h"
#include "platform/MainQueue.h"
#include "platform/UserDefaults.h"

namespace tessarin {
namespace {

MenuItem separator() {
  return {};
}

MenuItem heading(std::string title) {
  MenuItem item;
  item.title = std::move(title);
  return item;
}

}  // namespace

MenuBarManager::MenuBarManager(StatusBar& statusBar, UserDefaults& userDefaults, MainQueue& mainQueue,
                               Permissions permissions, Hooks hooks)
    : statusBar_(statusBar),
      userDefaults_(userDefaults),
      mainQueue_(mainQueue),
      permissions_(permissions),
      hooks_(std::move(hooks)) {}

void MenuBarManager::setupStatusItem() {
  statusBar_.createItem("Tessarin");
  hasStatusItem_ = true;
  rebuildMenu();
}

void MenuBarManager::rebuildMenu() {
  if (hasStatusItem_) statusBar_.setMenu(menu());
}

std::vector<MenuItem> MenuBarManager::menu() {
  return {
      enabledItem(),
      separator(),
      item(translate("Menu", "Check for Updates..."),
           hooks_.checkForUpdates ? &MenuBarManager::checkForUpdates : nullptr),
      item(translate("Menu", "Settings..."), hooks_.openSettings ? &MenuBarManager::openSettings : nullptr,
           ","),
      separator(),
      heading(translate("Menu", "Permissions")),
      inputMonitoringItem(),
      accessibilityItem(),
      separator(),
      item(translate("Menu", "Quit Tessarin"), hooks_.quit ? &MenuBarManager::quitApp : nullptr, "q"),
  };
}

MenuItem MenuBarManager::item(std::string title, Action action, std::string keyEquivalent) {
  MenuItem item{.title = std::move(title), .keyEquivalent = std::move(keyEquivalent), .action = nullptr};
  if (!action) return item;
  item.action = [this, action, weak = std::weak_ptr<char>(alive_)] {
    if (!weak.expired()) (this->*action)();
  };
  return item;
}

MenuItem MenuBarManager::enabledItem() {
  return item(isEnabled_ ? translate("Menu", "Disable Tessarin") : translate("Menu", "Enable Tessarin"),
              &MenuBarManager::toggleEnabled);
}

MenuItem MenuBarManager::inputMonitoringItem() {
  if (permissions_.isInputMonitoringGranted()) return heading(translate("Menu", "  Input Monitoring: ✓"));
  return item(translate("Menu", "  Input Monitoring: ✗"), &MenuBarManager::requestInputMonitoring);
}

MenuItem MenuBarManager::accessibilityItem() {
  if (permissions_.isAccessibilityGranted()) return heading(translate("Menu", "  Accessibility: ✓"));
  return item(translate("Menu", "  Accessibility: ✗ (optional)"), &MenuBarManager::requestAccessibility);
}

void MenuBarManager::toggleEnabled() {
  isEnabled_ = !isEnabled_;
  if (hasStatusItem_) statusBar_.setDimmed(!isEnabled_);
  userDefaults_.set(preferences::key::tessarinEnabled, isEnabled_);
  rebuildMenu();
}

void MenuBarManager::openSettings() {
  if (hooks_.openSettings) hooks_.openSettings(snippetStore_);
}

void MenuBarManager::requestInputMonitoring() {
  permissions_.requestListenAccess();
  rebuildMenu();
}

void MenuBarManager::requestAccessibility() {
  permissions_.promptForAccessibility();
  rebuildMenu();
}

void MenuBarManager::checkForUpdates() {
  if (!hooks_.checkForUpdates) return;
  mainQueue_.async([this, weak = std::weak_ptr<char>(alive_)] {
    if (!weak.expired()) hooks_.checkForUpdates();
  });
}

void MenuBarManager::quitApp() {
  if (hooks_.quit) hooks_.quit();
}

}  // namespace tessarin
