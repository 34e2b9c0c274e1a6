#include "platform/freedesktop/FileWatcher.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string>
#include <system_error>
#include <utility>

#include "base/Files.h"
#include "base/Log.h"
#include "platform/MainQueue.h"

namespace tessarin::freedesktop {
namespace {

namespace fs = std::filesystem;

constexpr int retryWatching = 1000;  // milliseconds

bool addWatch(int news, const fs::path& folder, std::uint32_t changes) {
  return inotify_add_watch(news, folder.c_str(), changes | IN_ONLYDIR | IN_MASK_ADD) >= 0;
}

/// The folder's files, and whether it goes away or one that it lies in is moved, it with it.
bool watchFolder(int news, const fs::path& folder) {
  // Not the making of files: what is written into a new one comes when it is closed.
  constexpr std::uint32_t files = IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE;
  if (!addWatch(news, folder, files | IN_DELETE_SELF | IN_MOVE_SELF)) return false;
  std::error_code ignored;
  fs::path above = fs::weakly_canonical(folder, ignored);
  for (; above != above.parent_path(); above = above.parent_path()) addWatch(news, above, IN_MOVE_SELF);
  return true;
}

}  // namespace

FileWatcher::FileWatcher(MainQueue& queue, const fs::path& file, std::function<void()> changed)
    : queue_(queue),
      file_(file),
      changed_(std::make_shared<std::function<void()>>(std::move(changed))),
      end_(eventfd(0, EFD_CLOEXEC)) {
  watchFolders();
  if (!isWatching_) log("FileWatcher", "cannot watch " + file_.parent_path().string());
  thread_ = std::thread([this] { run(); });
}

void FileWatcher::watchFolders() {
  try {
    createFolders(file_.parent_path());
  } catch (const std::system_error&) {
    // Watching it fails then.
  }
  std::error_code ignored;
  target_ = fs::weakly_canonical(file_, ignored);
  news_ = FileDescriptor(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
  isWatching_ = watchFolder(news_.get(), file_.parent_path());
  if (isWatching_) watchFolder(news_.get(), target_.parent_path());
}

FileWatcher::~FileWatcher() {
  eventfd_write(end_.get(), 1);
  thread_.join();
}

void FileWatcher::run() {
  for (;;) {
    std::array<pollfd, 2> files = {pollfd{news_.get(), POLLIN, 0}, pollfd{end_.get(), POLLIN, 0}};
    poll(files.data(), files.size(), isWatching_ ? -1 : retryWatching);
    if (files[1].revents != 0) return;
    if (!isWatching_) {
      watchFolders();
      tell();
      continue;
    }
    const News news = takeNews();
    if (news.isFolderGone) {
      log("FileWatcher", "has gone, and is made again: " + file_.parent_path().string());
      watchFolders();
    }
    if (news.isOfFile || news.isFolderGone) tell();
  }
}

void FileWatcher::tell() {
  queue_.async([weak = std::weak_ptr(changed_)] {
    if (const auto changed = weak.lock()) (*changed)();
  });
}

FileWatcher::News FileWatcher::takeNews() {
  News news;
  std::array<char, 4096> buffer;
  for (;;) {
    const ssize_t size = read(news_.get(), buffer.data(), buffer.size());
    if (size <= 0) return news;
    for (ssize_t at = 0; at < size;) {
      inotify_event event{};
      std::memcpy(&event, buffer.data() + at, sizeof(event));
      const fs::path name = event.len > 0 ? buffer.data() + at + sizeof(event) : "";
      const bool isLost = (event.mask & IN_Q_OVERFLOW) != 0;
      news.isOfFile = news.isOfFile || isLost || name == file_.filename() || name == target_.filename();
      news.isFolderGone =
          news.isFolderGone || (event.mask & (IN_DELETE_SELF | IN_MOVE_SELF | IN_UNMOUNT)) != 0;
      at += static_cast<ssize_t>(sizeof(event) + event.len);
    }
  }
}

}  // namespace tessarin::freedesktop
