#pragma once

#include <filesystem>
#include <string_view>

namespace tessarin {

/// What a replaced file outlives.
enum class Durability {
  processEnd,  ///< our own death at any instant; a power cut may bring the previous content back
  powerCut,    ///< also a power cut: waits until the disk has the content
};

/// Replaces the file's content so that a reader, at any instant and whatever becomes of us, finds either all
/// of the old content or all of the new. Permissions are kept; a new file is open to the user alone. A
/// symbolic link stays one and the file that it points to is replaced. The folder must exist.
/// Throws std::system_error; the old content is then untouched and nothing is left beside it.
void replaceFile(const std::filesystem::path& path, std::string_view content, Durability durability);

/// Removes what replacements left in the folder when their process was killed: the user's own files under the
/// names of such, last written before the time. Others may be replacing files there only from then on.
void removeAbandonedReplacements(const std::filesystem::path& folder, std::filesystem::file_time_type before);

}  // namespace tessarin
