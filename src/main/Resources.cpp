#include "main/Resources.h"

#include <system_error>

namespace tessarin {

std::filesystem::path resourceFolder(const std::filesystem::path& program) {
  const std::filesystem::path folder = program.parent_path();
  std::error_code ignored;
  if (std::filesystem::exists(folder / "resources", ignored)) return folder / "resources";
  return folder.parent_path() / "share/tessarin";
}

}  // namespace tessarin
