#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::freedesktop {

/// What a desktop entry says of an application.
struct DesktopEntry {
  std::string id;  ///< file name without ".desktop", folders joined by "-"
  std::string name;
  std::string path;
  std::string icon;            ///< icon name or path; may be empty
  std::string startupWmClass;  ///< the class of its windows, where it says so
  std::string program;         ///< file name of the program that it starts; may be empty
  bool isTerminalEmulator = false;
  bool isHidden = false;  ///< counts as removed, and removes those of the same id in later folders
};

/// The names by which texts for a locale ("de_AT.UTF-8@euro") are marked, the best first.
std::vector<std::string> localeCandidates(std::string_view locale);

/// Reads an entry of an application; `id` and `path` are left empty. None when it is of another kind or lacks
/// a name. `locales` as given by `localeCandidates`.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view content,
                                              const std::vector<std::string>& locales);

}  // namespace tessarin::freedesktop
