#pragma once

#include <functional>
#include <string>

#include "input/Permissions.h"

namespace tessarin {

class LoginItem;
class MainQueue;
class Pasteboard;
class SnippetStore;
class UserDefaults;
class WallClock;
class Workspace;

namespace ui {

/// What the settings window and the tabs in it work with. All references outlive the window.
struct SettingsServices {
  SnippetStore& snippetStore;
  UserDefaults& userDefaults;
  Permissions permissions;
  LoginItem& loginItem;
  Workspace& workspace;
  Pasteboard& pasteboard;
  MainQueue& mainQueue;
  const WallClock& wallClock;
  std::function<void()> checkForUpdates;
  std::string version;  ///< "Unknown" where the build does not say
  std::string build;
};

}  // namespace ui
}  // namespace tessarin
