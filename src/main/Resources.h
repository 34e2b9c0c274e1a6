#pragma once

#include <filesystem>

namespace tessarin {

/// The folder of the shipped data: "resources" beside the program, else share/tessarin under its install
/// prefix.
std::filesystem::path resourceFolder(const std::filesystem::path& program);

}  // namespace tessarin
