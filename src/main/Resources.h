#pragma once

#include <filesystem>
#include <string>

namespace tessarin {

/// The folder of the shipped data: "resources" beside the program, else share/tessarin under its install
/// prefix.
std::filesystem::path resourceFolder(const std::filesystem::path& program);

/// A program that ours starts: beside it, else in lib/tessarin under its install prefix.
std::filesystem::path helperProgram(const std::filesystem::path& program, const std::string& name);

}  // namespace tessarin
