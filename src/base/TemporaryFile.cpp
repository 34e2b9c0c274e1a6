#include "base/TemporaryFile.h"

#include <fcntl.h>
#include <stdlib.h>

#include <cerrno>
#include <string>
#include <system_error>

#include "base/FileDescriptor.h"

namespace tessarin {

TemporaryFile::TemporaryFile() {
  std::string name = std::filesystem::absolute(std::filesystem::temp_directory_path()) / "tessarin-XXXXXX";
  const FileDescriptor made(::mkostemp(name.data(), O_CLOEXEC));
  if (!made) throw std::system_error(errno, std::generic_category(), "cannot write " + name);
  path_ = name;
}

TemporaryFile::~TemporaryFile() {
  std::error_code ignored;
  std::filesystem::remove(path_, ignored);
}

}  // namespace tessarin
