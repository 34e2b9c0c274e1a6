#pragma once

#include <set>
#include <string>
#include <string_view>

namespace tessarin {
class UserDefaults;
}

/// The user's preferences: their keys, what an absent value stands for, and the readers that several
/// components share. Nothing is cached, so a change counts from the next read on. Main thread.
namespace tessarin::preferences {

/// Keys of the preferences store, with the type and the value when absent.
namespace key {
inline constexpr const char* triggerCharacter = "triggerCharacter";  ///< text, ":"
/// Whether Return and Tab are left alone where a shortcode is doubtful; Boolean, true.
inline constexpr const char* confirmsOnlyWhatIsMeant = "confirmsOnlyWhatIsMeant";
/// Whether a trigger behind a letter or digit begins nothing; Boolean, false.
inline constexpr const char* triggersOnlyAtWordStart = "triggersOnlyAtWordStart";
inline constexpr const char* showMenuBarIcon = "showMenuBarIcon";                ///< Boolean, true
inline constexpr const char* hasCompletedOnboarding = "hasCompletedOnboarding";  ///< Boolean, false
inline constexpr const char* blacklistedApps = "blacklistedApps";                ///< list of texts, empty
inline constexpr const char* pasteFallbackApps = "pasteFallbackApps";            ///< list of texts, empty
inline constexpr const char* tessarinEnabled = "tessarinEnabled";                ///< Boolean, written only
inline constexpr const char* automaticallyChecksForUpdates =
    "automaticallyChecksForUpdates";  ///< Boolean, false
}  // namespace key

inline constexpr const char* defaultTriggerCharacter = ":";
/// What the trigger picker offers, in this order. A stored trigger is not checked against it.
inline constexpr std::string_view triggerChoices[] = {":", ";", "/"};

inline constexpr bool showMenuBarIconWhenAbsent = true;
inline constexpr bool hasCompletedOnboardingWhenAbsent = false;
inline constexpr bool automaticallyChecksForUpdatesWhenAbsent = false;

bool confirmsOnlyWhatIsMeant(const UserDefaults& defaults);
bool triggersOnlyAtWordStart(const UserDefaults& defaults);

/// Identifiers are compared as exact text, letter case included.
using AppSet = std::set<std::string, std::less<>>;

/// The first character of the stored trigger; ":" when none is stored or it is empty.
std::string currentTriggerCharacter(const UserDefaults& defaults);

/// Applications without expansion whatever the user's list says.
const AppSet& defaultBlockedApps();
/// Applications that always get their text by paste: terminal emulators and web browsers.
const AppSet& defaultPasteFallbackApps();

/// The stored list joined with the built-in one.
AppSet effectiveBlockedApps(const UserDefaults& defaults);
AppSet effectivePasteFallbackApps(const UserDefaults& defaults);

/// The same as looking into the effective list, without building it: asked at every key.
bool isBlockedApp(const UserDefaults& defaults, std::string_view bundleIdentifier);
bool isPasteFallbackApp(const UserDefaults& defaults, std::string_view bundleIdentifier);

}  // namespace tessarin::preferences
