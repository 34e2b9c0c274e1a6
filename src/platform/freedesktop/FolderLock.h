#pragma once

#include <filesystem>
#include <optional>

#include "base/FileDescriptor.h"

namespace tessarin::freedesktop {

/// Holds a folder for one running instance. The system lets go of it when the process ends, however it ends.
class FolderLock {
 public:
  /// Makes the folder. None when another process holds it; an unwritable folder is logged and counts as held
  /// by us, since nothing can be written there anyway.
  static std::optional<FolderLock> acquire(const std::filesystem::path& folder);

 private:
  explicit FolderLock(FileDescriptor file) : file_(std::move(file)) {}
  FileDescriptor file_;
};

}  // namespace tessarin::freedesktop
