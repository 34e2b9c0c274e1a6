#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tessarin {

/// The whole content of a regular file; nothing when there is no file at the path (a missing folder counts as
/// a missing file). Throws std::system_error, whose text names the path, for everything else that keeps it
/// from being read: a folder or a pipe in its place, no permission, a failing disk.
std::optional<std::string> readFileIfPresent(const std::filesystem::path& path);

/// The same, and a missing file is an error too.
std::string readFile(const std::filesystem::path& path);

/// Makes the folder and every missing one above it, open to the user alone; existing ones are left as they
/// are. Throws std::system_error.
void createFolders(const std::filesystem::path& folder);

}  // namespace tessarin
