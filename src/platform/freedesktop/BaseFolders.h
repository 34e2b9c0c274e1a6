#pragma once

#include <filesystem>
#include <vector>

#include "base/Environment.h"

namespace tessarin::freedesktop {

/// The user's home folder; "/" when none is known.
std::filesystem::path homeFolder(const Environment& environment);

/// Where our preferences live: "tessarin" in $XDG_CONFIG_HOME. Need not exist.
std::filesystem::path configFolder(const Environment& environment);

/// Folders that hold desktop entries, the most important first; need not exist. Those of the package systems
/// that bring their own are among them even where the session forgot to list them.
std::vector<std::filesystem::path> applicationFolders(const Environment& environment);

}  // namespace tessarin::freedesktop
