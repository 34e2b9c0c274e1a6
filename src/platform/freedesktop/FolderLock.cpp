#include "platform/freedesktop/FolderLock.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <cstring>
#include <string>
#include <system_error>

#include "base/Files.h"
#include "base/Log.h"

namespace tessarin::freedesktop {

std::optional<FolderLock> FolderLock::acquire(const std::filesystem::path& folder) {
  std::string problem;
  try {
    createFolders(folder);
  } catch (const std::system_error&) {
    // Opening fails then.
  }
  FileDescriptor file(::open((folder / "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
  if (!file) {
    problem = std::strerror(errno);
    file = FileDescriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  }
  if (file && flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) return std::nullopt;
  if (!problem.empty()) log("Tessarin", "The data folder cannot be locked: " + problem);
  return FolderLock(std::move(file));
}

}  // namespace tessarin::freedesktop
