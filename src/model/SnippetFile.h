#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "model/Snippet.h"

namespace tessarin {

/// No file of snippets is larger, neither one that is read nor one that is written, so that every export can
/// be imported again. Millions of snippets, and little enough to be held in memory twice.
inline constexpr std::uintmax_t largestSnippetFile = 512U << 20;

/// The snippets of an exported file. Any thread. Throws std::runtime_error (DataError for the content), whose
/// text is one line fit for the user, when it is no ordinary file, cannot be read, is larger than
/// `largestSnippetFile` bytes or holds anything but snippets.
std::vector<Snippet> readSnippetFile(const std::filesystem::path& file);
/// Replaces the file by these snippets as an export has them. Throws std::runtime_error (DataError for what
/// cannot be read back), the old file then being untouched.
void writeSnippetFile(const std::filesystem::path& file, const std::vector<Snippet>& snippets);

}  // namespace tessarin
