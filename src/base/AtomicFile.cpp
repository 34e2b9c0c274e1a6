#include "base/AtomicFile.h"

#include <fcntl.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <string>
#include <system_error>
#include <vector>

#include "base/FileDescriptor.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

/// The name of a new file beside its target; the last six characters are made up.
constexpr std::string_view replacementName = ".tessarin-XXXXXX";
constexpr std::string_view replacementPrefix = replacementName.substr(0, replacementName.size() - 6);

[[noreturn]] void fail(int error, const fs::path& path) {
  throw std::system_error(error, std::generic_category(), "cannot write " + path.string());
}

fs::path behindLinks(const fs::path& path) {
  constexpr int mostLinks = 40;  // as many as the kernel follows
  fs::path file = path;
  std::error_code error;
  for (int links = 0; fs::is_symlink(file, error); ++links) {
    if (links == mostLinks) fail(ELOOP, path);
    const fs::path target = fs::read_symlink(file, error);
    if (error) fail(error.value(), path);
    file = file.parent_path() / target;  // an absolute target stands for itself
  }
  return file;
}

mode_t modeOf(const fs::path& file) {
  struct stat status {};
  if (::lstat(file.c_str(), &status) != 0) {
    if (errno != ENOENT) fail(errno, file);
    return S_IRUSR | S_IWUSR;
  }
  if (S_ISDIR(status.st_mode)) fail(EISDIR, file);
  if (!S_ISREG(status.st_mode)) fail(EINVAL, file);
  return status.st_mode & ~static_cast<mode_t>(S_IFMT);
}

/// A new file beside the target; removed again unless it takes the target's place.
class FileReplacement {
 public:
  explicit FileReplacement(const fs::path& target) : target_(target) {
    name_ = (target.parent_path() / replacementName).string();
    file_ = FileDescriptor(::mkostemp(name_.data(), O_CLOEXEC));
    if (!file_) fail(errno, target_);
  }
  ~FileReplacement() {
    if (!done_ && file_) ::unlink(name_.c_str());
  }
  FileReplacement(const FileReplacement&) = delete;
  FileReplacement& operator=(const FileReplacement&) = delete;

  void write(std::string_view content) {
    while (!content.empty()) {
      const ssize_t count = ::write(file_.get(), content.data(), content.size());
      if (count < 0 && errno == EINTR) continue;
      if (count < 0) fail(errno, target_);
      content.remove_prefix(static_cast<std::size_t>(count));
    }
  }
  void setMode(mode_t mode) {
    if (::fchmod(file_.get(), mode) != 0) fail(errno, target_);
  }
  void flush() {
    if (::fdatasync(file_.get()) != 0) fail(errno, target_);
  }
  void takePlace() {
    if (std::rename(name_.c_str(), target_.c_str()) != 0) fail(errno, target_);
    done_ = true;
  }

 private:
  fs::path target_;
  std::string name_;
  FileDescriptor file_;
  bool done_ = false;
};

/// The new name must reach the disk too. Not every file system can do it, and the content is safe either way.
void flushFolder(const fs::path& folder) {
  const FileDescriptor opened(
      ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (opened) ::fsync(opened.get());
}

bool isAbandoned(const fs::path& file, fs::file_time_type before) {
  const std::string name = file.filename();
  if (name.size() != replacementName.size() || !name.starts_with(replacementPrefix)) return false;
  struct stat status {};
  if (::lstat(file.c_str(), &status) != 0) return false;
  std::error_code error;
  return S_ISREG(status.st_mode) && status.st_uid == ::getuid() &&
         fs::last_write_time(file, error) < before && !error;
}

}  // namespace

void replaceFile(const fs::path& path, std::string_view content, Durability durability) {
  const fs::path target = behindLinks(path);
  const mode_t mode = modeOf(target);
  FileReplacement replacement(target);
  replacement.write(content);
  replacement.setMode(mode);
  if (durability == Durability::powerCut) replacement.flush();
  replacement.takePlace();
  if (durability == Durability::powerCut) flushFolder(target.parent_path());
}

void removeAbandonedReplacements(const fs::path& folder, fs::file_time_type before) {
  std::error_code error;
  std::vector<fs::path> abandoned;
  for (fs::directory_iterator file(folder, error); !error && file != fs::directory_iterator();
       file.increment(error)) {
    if (isAbandoned(file->path(), before)) abandoned.push_back(file->path());
  }
  for (const fs::path& file : abandoned) fs::remove(file, error);
}

}  // namespace tessarin
