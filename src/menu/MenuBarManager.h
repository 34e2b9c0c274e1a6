#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "input/Permissions.h"
#include "platform/StatusBar.h"

namespace tessarin {

class MainQueue;
class SnippetStore;
class UserDefaults;

/// Owns the program's item in the tray and its menu, and carries the switch that turns expansion on and off.
/// Main thread.
class MenuBarManager {
 public:
  /// What the menu leads to outside of this component. An item whose hook is absent is shown disabled.
  struct Hooks {
    /// Shows the settings window for the store, which is null when none was given.
    std::function<void(SnippetStore*)> openSettings;
    /// Starts an update check that the user asked for.
    std::function<void()> checkForUpdates;
    /// Ends the program.
    std::function<void()> quit;
  };

  MenuBarManager(StatusBar& statusBar, UserDefaults& userDefaults, MainQueue& mainQueue,
                 Permissions permissions, Hooks hooks);
  MenuBarManager(const MenuBarManager&) = delete;
  MenuBarManager& operator=(const MenuBarManager&) = delete;

  /// The store that the settings window will show; it must outlive the manager.
  void setSnippetStore(SnippetStore& store) { snippetStore_ = &store; }
  /// Whether keys are to be handled at all. On at every start, whatever was stored.
  bool isEnabled() const { return isEnabled_; }

  /// Shows the item with its menu. Once.
  void setupStatusItem();
  /// The menu shows the state of this moment until it is built again.
  void rebuildMenu();

  void toggleEnabled();
  /// Nothing where there is no settings window to open.
  void openSettings();
  bool canOpenSettings() const { return static_cast<bool>(hooks_.openSettings); }
  void requestInputMonitoring();
  void requestAccessibility();
  /// The check begins after the menu has closed.
  void checkForUpdates();
  void quitApp();

 private:
  using Action = void (MenuBarManager::*)();
  std::vector<MenuItem> menu();
  MenuItem item(std::string title, Action action, std::string keyEquivalent = {});
  MenuItem enabledItem();
  MenuItem inputMonitoringItem();
  MenuItem accessibilityItem();

  StatusBar& statusBar_;
  UserDefaults& userDefaults_;
  MainQueue& mainQueue_;
  Permissions permissions_;
  Hooks hooks_;
  SnippetStore* snippetStore_ = nullptr;
  bool hasStatusItem_ = false;
  bool isEnabled_ = true;
  std::shared_ptr<char> alive_ = std::make_shared<char>();  ///< menu items hold it weakly
};

}  // namespace tessarin
