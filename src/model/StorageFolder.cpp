#include "model/StorageFolder.h"

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>
#include <string>
#include <vector>

namespace tessarin {
namespace {

namespace fs = std::filesystem;

std::optional<fs::path> absolutePath(const std::optional<std::string>& value) {
  if (!value || !fs::path(*value).is_absolute()) return std::nullopt;
  return fs::path(*value);
}

std::optional<fs::path> homeInUserDatabase() {
  constexpr std::size_t largestEntry = 65536;
  std::vector<char> buffer(largestEntry);
  passwd entry{};
  passwd* found = nullptr;
  if (::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || !found)
    return std::nullopt;
  return absolutePath(found->pw_dir ? std::optional<std::string>(found->pw_dir) : std::nullopt);
}

bool isFreeOrOurs(const fs::path& folder) {
  struct stat status {};
  if (::lstat(folder.c_str(), &status) != 0) return true;
  return S_ISDIR(status.st_mode) && status.st_uid == ::getuid() &&
         (status.st_mode & (S_IWGRP | S_IWOTH)) == 0;
}

/// Anybody may make folders below /tmp, so one that is not ours alone is passed over.
fs::path temporaryFolder() {
  const std::string name = "/tmp/tessarin-" + std::to_string(::getuid());
  fs::path folder = name;
  for (int n = 2; !isFreeOrOurs(folder); ++n) folder = name + "-" + std::to_string(n);
  return folder;
}

fs::path dataFolder(const Environment& environment) {
  if (const auto folder = absolutePath(environment("XDG_DATA_HOME"))) return *folder;
  auto home = absolutePath(environment("HOME"));
  if (!home) home = homeInUserDatabase();
  if (home) return *home / ".local" / "share";
  if (const auto folder = absolutePath(environment("XDG_RUNTIME_DIR"))) return *folder;
  return temporaryFolder();
}

}  // namespace

fs::path applicationSupportFolder(const Environment& environment) {
  return dataFolder(environment) / "Tessarin";
}

}  // namespace tessarin
