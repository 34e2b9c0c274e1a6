#include "main/Resources.h"

#include <system_error>

namespace tessarin {

std::filesystem::path resourceFolder(const std::filesystem::path& program) {
  const std::filesystem::path folder = program.parent_path();
  std::error_code ignored;
  if (std::filesystem::exists(folder / "resources", ignored)) return folder / "resources";
  return folder.parent_path() / "share/tessarin";
}

std::filesystem::path helperProgram(const std::filesystem::path& program, const std::string& name) {
  std::error_code ignored;
  std::filesystem::path beside = program.parent_path() / name;
  if (std::filesystem::exists(beside, ignored)) return beside;
  return program.parent_path().parent_path() / "lib/tessarin" / name;
}

}  // namespace tessarin
