#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/Workspace.h"
#include "platform/freedesktop/DesktopEntries.h"

namespace tessarin::freedesktop {

/// What a window says of the application that it belongs to; any of it may be missing.
struct WindowIdentity {
  std::string applicationId;   ///< the toolkit's own application id
  std::string windowClass;     ///< second part of WM_CLASS
  std::string windowInstance;  ///< first part of WM_CLASS
  std::string program;         ///< file name of the running program
  bool operator==(const WindowIdentity&) const = default;
};

/// Finds out which installed application a window belongs to. Any thread.
class ApplicationMatcher {
 public:
  explicit ApplicationMatcher(std::shared_ptr<DesktopEntries> entries) : entries_(std::move(entries)) {}

  /// None when the window says nothing of itself.
  std::optional<Application> applicationOf(const WindowIdentity& window) const;
  /// What is installed under an identifier, a listed one or a desktop-entry id.
  std::optional<ApplicationInfo> installed(const std::string& bundleIdentifier) const;

 private:
  std::optional<DesktopEntry> entryOf(const WindowIdentity& window) const;
  std::optional<DesktopEntry> ofOwnWindow(const WindowIdentity& window) const;

  std::shared_ptr<DesktopEntries> entries_;
};

}  // namespace tessarin::freedesktop
