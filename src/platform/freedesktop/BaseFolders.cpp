#include "platform/freedesktop/BaseFolders.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <sstream>
#include <string>

namespace tessarin::freedesktop {
namespace {

namespace fs = std::filesystem;

/// The variable's folder; relative ones do not count.
fs::path folder(const Environment& environment, const char* variable, const fs::path& fallback) {
  const fs::path named = environment(variable).value_or("");
  return named.is_absolute() ? named : fallback;
}

void addFolder(std::vector<fs::path>& folders, const fs::path& added) {
  if (!added.is_absolute()) return;
  const fs::path folder = (added / "").lexically_normal().parent_path();
  if (std::find(folders.begin(), folders.end(), folder) == folders.end()) folders.push_back(folder);
}

}  // namespace

fs::path homeFolder(const Environment& environment) {
  if (const auto home = environment("HOME"); home && fs::path(*home).is_absolute()) return *home;
  const passwd* user = ::getpwuid(::getuid());  // only at start-up, on one thread
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "/";
}

fs::path configFolder(const Environment& environment) {
  return folder(environment, "XDG_CONFIG_HOME", homeFolder(environment) / ".config") / "tessarin";
}

std::vector<fs::path> applicationFolders(const Environment& environment) {
  const fs::path home = folder(environment, "XDG_DATA_HOME", homeFolder(environment) / ".local/share");
  std::vector<fs::path> folders;
  addFolder(folders, home / "applications");
  const std::string listed = environment("XDG_DATA_DIRS").value_or("");
  std::istringstream dataFolders(listed.empty() ? "/usr/local/share:/usr/share" : listed);
  for (std::string name; std::getline(dataFolders, name, ':');) {
    if (!name.empty()) addFolder(folders, fs::path(name) / "applications");
  }
  addFolder(folders, home / "flatpak/exports/share/applications");
  addFolder(folders, "/var/lib/flatpak/exports/share/applications");
  addFolder(folders, "/var/lib/snapd/desktop/applications");
  return folders;
}

}  // namespace tessarin::freedesktop
