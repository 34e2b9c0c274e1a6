#include "platform/freedesktop/ApplicationMatcher.h"

#include <utility>

#include "platform/freedesktop/AsciiCase.h"
#include "platform/freedesktop/BundleIdentifiers.h"

namespace tessarin::freedesktop {
namespace {

std::string firstGiven(std::initializer_list<std::string> names) {
  for (const auto& name : names) {
    if (!name.empty()) return name;
  }
  return {};
}

std::optional<std::string> firstListed(std::initializer_list<std::string> names) {
  for (const auto& name : names) {
    if (auto identifier = listedIdentifier(name)) return identifier;
  }
  return std::nullopt;
}

bool hasTerminalClass(const WindowIdentity& window) {
  return isTerminalClass(window.windowClass) || isTerminalClass(window.windowInstance) ||
         isTerminalClass(window.applicationId);
}

PasteChord chordOf(const WindowIdentity& window, bool isTerminalEmulator) {
  for (const auto& name : {window.windowClass, window.windowInstance, window.applicationId}) {
    if (const auto chord = chordOfClass(name)) return *chord;
  }
  return isTerminalEmulator ? PasteChord::shiftInsert : PasteChord::controlV;
}

}  // namespace

std::optional<Application> ApplicationMatcher::applicationOf(const WindowIdentity& window) const {
  const std::string ownName =
      firstGiven({window.applicationId, window.windowClass, window.windowInstance, window.program});
  if (ownName.empty()) return std::nullopt;
  const auto webApplication = ofOwnWindow(window);
  const auto entry = webApplication ? webApplication : entryOf(window);
  const std::string entryId = entry ? entry->id : std::string();
  Application application;
  const auto listed =
      webApplication
          ? listedIdentifier(entryId)
          : firstListed({entryId, window.applicationId, window.windowClass, window.windowInstance});
  application.bundleIdentifier = listed.value_or(firstGiven({entryId, ownName}));
  application.name = entry ? entry->name : firstGiven({window.windowClass, ownName});
  application.isTerminal = (entry && entry->isTerminalEmulator) || hasTerminalClass(window);
  application.pasteChord = chordOf(window, application.isTerminal);
  application.isReadForByAnother = lowerCase(window.windowClass).ends_with(".exe");
  return application;
}

/// A browser gives the windows of a web application that has an entry an instance name of their own, and its
/// own class.
std::optional<DesktopEntry> ApplicationMatcher::ofOwnWindow(const WindowIdentity& window) const {
  if (lowerCase(window.windowInstance) == lowerCase(window.windowClass)) return std::nullopt;
  return entries_->withStartupWmClass(window.windowInstance);
}

std::optional<DesktopEntry> ApplicationMatcher::entryOf(const WindowIdentity& window) const {
  if (auto entry = entries_->withId(window.applicationId)) return entry;
  if (auto entry = entries_->withStartupWmClass(window.windowClass)) return entry;
  for (const auto& name : {window.windowClass, window.windowInstance}) {
    if (auto entry = entries_->withId(name)) return entry;
    if (auto entry = entries_->withLastIdPart(name)) return entry;
  }
  // Interpreters run many programs, so the program counts only when there is nothing else.
  if (!window.windowClass.empty()) return std::nullopt;
  return entries_->withProgram(window.program);
}

std::optional<ApplicationInfo> ApplicationMatcher::installed(const std::string& bundleIdentifier) const {
  auto entry = entries_->withId(bundleIdentifier);
  for (const auto& name : namesOfListed(bundleIdentifier)) {
    if (!entry) entry = entries_->withId(name);
  }
  if (!entry) return std::nullopt;
  return ApplicationInfo{entry->name, entry->path, entry->icon};
}

}  // namespace tessarin::freedesktop
