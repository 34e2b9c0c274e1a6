#pragma once

#include <filesystem>

namespace tessarin {

/// An empty file outside the user's folders, open to the user alone and gone with this: how two of our
/// processes hand over what no line has room for.
class TemporaryFile {
 public:
  /// Throws std::system_error where none can be made.
  TemporaryFile();
  ~TemporaryFile();
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;

  /// Absolute.
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace tessarin
