#pragma once

#include <filesystem>

#include "base/Environment.h"

namespace tessarin {

/// The folder of the user's snippets and usage files: "Tessarin" in $XDG_DATA_HOME, else in ~/.local/share;
/// relative paths in the environment count as unset. The home folder is $HOME, else that of the user
/// database. With neither, the session's runtime folder serves, and last a folder below /tmp that no other
/// user owns. Only looks; whoever writes creates the folder.
std::filesystem::path applicationSupportFolder(const Environment& environment = processEnvironment);

}  // namespace tessarin
