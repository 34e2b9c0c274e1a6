#include "platform/freedesktop/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <cstring>
#include <system_error>

#include "base/Log.h"

namespace tessarin::freedesktop {

std::optional<FolderLock> FolderLock::acquire(const std::filesystem::path& folder) {
  std::error_code ignored;
  std::filesystem::create_directories(folder, ignored);
  FileDescriptor file(::open((folder / "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  if (!file) {
    log("Tessarin", "The data folder cannot be locked: " + std::string(std::strerror(errno)));
    return FolderLock(FileDescriptor());
  }
  if (flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return std::nullopt;
  return FolderLock(std::move(file));
}

}  // namespace tessarin::freedesktop
