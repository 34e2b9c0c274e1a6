#include "input/Preferences.h"

#include <algorithm>

#include "platform/UserDefaults.h"
#include "text/Graphemes.h"

namespace tessarin::preferences {
namespace {

AppSet joined(const UserDefaults& defaults, const char* key, const AppSet& builtIn) {
  AppSet all = builtIn;
  if (auto stored = defaults.stringArray(key)) all.insert(stored->begin(), stored->end());
  return all;
}

bool isListed(const UserDefaults& defaults, const char* key, const AppSet& builtIn,
              std::string_view bundleIdentifier) {
  if (builtIn.contains(bundleIdentifier)) return true;
  const auto stored = defaults.stringArray(key);
  return stored && std::find(stored->begin(), stored->end(), bundleIdentifier) != stored->end();
}

}  // namespace

std::string currentTriggerCharacter(const UserDefaults& defaults) {
  const auto stored = defaults.string(key::triggerCharacter);
  if (!stored || stored->empty()) return defaultTriggerCharacter;
  return text::firstCharacter(*stored);
}

bool confirmsOnlyWhatIsMeant(const UserDefaults& defaults) {
  return defaults.boolean(key::confirmsOnlyWhatIsMeant).value_or(true);
}

bool triggersOnlyAtWordStart(const UserDefaults& defaults) {
  return defaults.boolean(key::triggersOnlyAtWordStart).value_or(false);
}

const AppSet& defaultBlockedApps() {
  static const AppSet apps = {"com.tinyspeck.slackmacgap", "com.apple.MobileSMS"};
  return apps;
}

const AppSet& defaultPasteFallbackApps() {
  static const AppSet apps = {
      "com.apple.Terminal",
      "com.googlecode.iterm2",
      "com.mitchellh.ghostty",
      "net.kovidgoyal.kitty",
      "io.alacritty",
      "co.zeit.hyper",
      "com.github.wez.wezterm",
      "com.apple.Safari",
      "com.google.Chrome",
      "com.google.Chrome.canary",
      "org.mozilla.firefox",
      "com.microsoft.edgemac",
      "com.brave.Browser",
      "com.operasoftware.Opera",
      "company.thebrowser.Browser",
      "com.vivaldi.Vivaldi",
  };
  return apps;
}

AppSet effectiveBlockedApps(const UserDefaults& defaults) {
  return joined(defaults, key::blacklistedApps, defaultBlockedApps());
}

AppSet effectivePasteFallbackApps(const UserDefaults& defaults) {
  return joined(defaults, key::pasteFallbackApps, defaultPasteFallbackApps());
}

bool isBlockedApp(const UserDefaults& defaults, std::string_view bundleIdentifier) {
  return isListed(defaults, key::blacklistedApps, defaultBlockedApps(), bundleIdentifier);
}

bool isPasteFallbackApp(const UserDefaults& defaults, std::string_view bundleIdentifier) {
  return isListed(defaults, key::pasteFallbackApps, defaultPasteFallbackApps(), bundleIdentifier);
}

}  // namespace tessarin::preferences
