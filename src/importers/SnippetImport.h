#pragma once

#include <filesystem>

#include "importers/ForeignSnippets.h"

namespace tessarin {

/// Whether the path leads to something else than a file of ours: a folder, or a file whose name or first
/// characters tell that it is another program's. What cannot be read counts as ours.
bool isForeign(const std::filesystem::path& path);

/// What can be imported of a file or folder: snippets as an export of ours has them, matches of espanso
/// (.yml, .yaml), phrases of AutoKey (.txt with its description), tables (.csv, .tsv); of a folder, whatever
/// of espanso and AutoKey is in it. Any thread.
/// Throws std::runtime_error (DataError for the content), whose text is one line fit for the user.
ForeignSnippets readAnySnippets(const std::filesystem::path& path, const ImportTerms& terms);

}  // namespace tessarin
