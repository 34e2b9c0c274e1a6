#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <thread>

#include "base/FileDescriptor.h"

namespace tessarin {
class MainQueue;
}

namespace tessarin::freedesktop {

/// Tells when somebody has written, replaced or removed a file, also behind a symbolic link. Asleep
/// otherwise. Main thread.
class FileWatcher {
 public:
  /// Makes the file's folder if it does not exist; the file itself need not. Where the folder cannot be
  /// watched that is logged and nothing is ever told. `queue` has to outlive this.
  FileWatcher(MainQueue& queue, const std::filesystem::path& file, std::function<void()> changed);
  ~FileWatcher();
  FileWatcher(const FileWatcher&) = delete;
  FileWatcher& operator=(const FileWatcher&) = delete;

 private:
  void run();
  /// Takes all news from the kernel; whether any was of the file.
  bool takeNews();

  MainQueue& queue_;
  std::filesystem::path file_;
  std::filesystem::path target_;  // where symbolic links led at the start
  std::shared_ptr<std::function<void()>> changed_;
  FileDescriptor news_;
  FileDescriptor end_;
  std::thread thread_;
};

}  // namespace tessarin::freedesktop
