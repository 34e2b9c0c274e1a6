#pragma once

#include <filesystem>
#include <optional>

#include "base/FileDescriptor.h"

namespace tessarin::freedesktop {

/// Holds a folder for one running instance. The system lets go of it when the process ends, however it ends.
class FolderLock {
 public:
  /// Makes the folder, open to the user alone. None when another process holds it. Where no lock file can be
  /// made, which is logged, the folder itself is locked; one that is not even there counts as held by us.
  static std::optional<FolderLock> acquire(const std::filesystem::path& folder);

 private:
  explicit FolderLock(FileDescriptor file) : file_(std::move(file)) {}
  FileDescriptor file_;
};

}  // namespace tessarin::freedesktop
