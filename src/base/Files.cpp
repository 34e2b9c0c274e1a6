#include "base/Files.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <system_error>

#include "base/FileDescriptor.h"

namespace tessarin {
namespace {

[[noreturn]] void fail(int error, const std::string& what, const std::filesystem::path& path) {
  throw std::system_error(error, std::generic_category(), what + " " + path.string());
}

std::size_t checkedSize(const FileDescriptor& file, const std::filesystem::path& path) {
  struct stat status {};
  if (::fstat(file.get(), &status) != 0) fail(errno, "cannot read", path);
  if (S_ISDIR(status.st_mode)) fail(EISDIR, "cannot read", path);
  if (!S_ISREG(status.st_mode)) fail(EINVAL, "not an ordinary file:", path);
  return static_cast<std::size_t>(status.st_size);
}

std::string readAll(const FileDescriptor& file, const std::filesystem::path& path) {
  constexpr std::size_t step = 4096;
  // One byte more than the file has, so that the end is seen without growing.
  std::string content(checkedSize(file, path) + 1, '\0');
  std::size_t used = 0;
  for (;;) {
    if (used == content.size()) content.resize(used + std::max(used, step));
    const ssize_t count = ::read(file.get(), content.data() + used, content.size() - used);
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(errno, "cannot read", path);
    if (count == 0) break;
    used += static_cast<std::size_t>(count);
  }
  content.resize(used);
  return content;
}

}  // namespace

std::optional<std::string> readFileIfPresent(const std::filesystem::path& path) {
  // Without O_NONBLOCK a pipe in the file's place would hold us up.
  const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  if (file) return readAll(file, path);
  if (errno == ENOENT || errno == ENOTDIR) return std::nullopt;
  fail(errno, "cannot read", path);
}

std::string readFile(const std::filesystem::path& path) {
  auto content = readFileIfPresent(path);
  if (!content) fail(ENOENT, "cannot read", path);
  return *std::move(content);
}

void createFolders(const std::filesystem::path& folder) {
  std::error_code ignored;
  if (folder.empty() || std::filesystem::is_directory(folder, ignored)) return;
  if (folder.has_parent_path() && folder.parent_path() != folder) createFolders(folder.parent_path());
  if (::mkdir(folder.c_str(), S_IRWXU) == 0) return;
  const int error = errno;
  if (!std::filesystem::is_directory(folder, ignored)) fail(error, "cannot create", folder);
}

}  // namespace tessarin
