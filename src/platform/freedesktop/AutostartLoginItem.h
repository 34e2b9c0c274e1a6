#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "base/Environment.h"
#include "platform/LoginItem.h"

namespace tessarin::freedesktop {

class DesktopEntryText;

/// The login item as an autostart entry, tessarin.desktop, in the user's configuration folder; one of the
/// same name that an administrator or a package placed counts where the user has none.
class AutostartLoginItem final : public LoginItem {
 public:
  /// `program`: the absolute path that the entry starts. The environment gives $XDG_CONFIG_HOME,
  /// $XDG_CONFIG_DIRS, $XDG_CURRENT_DESKTOP and $PATH; it is asked once.
  explicit AutostartLoginItem(std::filesystem::path program,
                              const Environment& environment = processEnvironment);

  /// Puts an entry of the user's right, whatever kept it from starting the program; what else the user wrote
  /// into it stays.
  std::optional<std::string> registerItem() override;
  /// Removes the user's entry. One that hides an entry for everybody, or holds more than we wrote, stays and
  /// is marked as hidden.
  std::optional<std::string> unregisterItem() override;
  /// As the desktop judges it: an entry that is hidden, switched off, meant for other desktops, or whose
  /// program is missing starts nothing.
  bool isEnabled() override;

 private:
  bool starts(const DesktopEntryText& entry) const;
  bool isForThisDesktop(const DesktopEntryText& entry) const;
  bool isProgram(const std::string& name) const;
  bool hasSystemEntry() const;
  void write(const DesktopEntryText& entry) const;
  void enable() const;
  void disable() const;

  std::filesystem::path program_;
  std::filesystem::path file_;
  std::vector<std::filesystem::path> systemFiles_;  ///< the most important first; need not exist
  std::vector<std::string> desktops_;
  std::vector<std::string> path_;
};

}  // namespace tessarin::freedesktop
