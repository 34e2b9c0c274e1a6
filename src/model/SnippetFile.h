#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

#include "model/Snippet.h"

namespace tessarin {

/// Far more than anybody's snippets, and little enough to be held in memory twice.
inline constexpr std::uintmax_t largestSnippetFile = 64U << 20;

/// The snippets of an exported file. Any thread. Throws std::runtime_error (DataError for the content), whose
/// text is one line fit for the user, when it is no ordinary file, cannot be read, is larger than
/// `largestSnippetFile` bytes or holds anything but snippets.
std::vector<Snippet> readSnippetFile(const std::filesystem::path& file);

}  // namespace tessarin
