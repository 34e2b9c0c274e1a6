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

/// Tells when somebody has written, replaced or removed a file, also behind a symbolic link, or has moved a
/// folder that it lies in. Asleep otherwise. Main thread.
class FileWatcher {
 public:
  /// Makes the file's folder if it does not exist, and again when it is removed or moved away; the file
  /// itself need not exist. As long as the folder cannot be watched, which is logged, `changed` is called
  /// once a second, whether anything has changed or not. `queue` has to outlive this.
  FileWatcher(MainQueue& queue, const std::filesystem::path& file, std::function<void()> changed);
  ~FileWatcher();
  FileWatcher(const FileWatcher&) = delete;
  FileWatcher& operator=(const FileWatcher&) = delete;

 private:
  struct News {
    bool isOfFile = false;
    bool isFolderGone = false;
  };

  void watchFolders();
  void run();
  void tell();
  /// Takes all news from the kernel.
  News takeNews();

  MainQueue& queue_;
  std::filesystem::path file_;
  std::filesystem::path target_;  // where symbolic links led when watching began
  std::shared_ptr<std::function<void()>> changed_;
  bool isWatching_ = false;
  FileDescriptor news_;
  FileDescriptor end_;
  std::thread thread_;
};

}  // namespace tessarin::freedesktop
