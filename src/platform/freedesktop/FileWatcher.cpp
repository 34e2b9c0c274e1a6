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

bool watchFolder(int news, const fs::path& folder) {
  // Not its making: what is written into a new file comes when it is closed.
  constexpr std::uint32_t changes =
      IN_CLOSE_WRITE | IN_MOVED_TO | IN_MOVED_FROM | IN_DELETE | IN_DELETE_SELF | IN_MOVE_SELF;
  return inotify_add_watch(news, folder.c_str(), changes | IN_ONLYDIR) >= 0;
}

}  // namespace

FileWatcher::FileWatcher(MainQueue& queue, const fs::path& file, std::function<void()> changed)
    : queue_(queue),
      file_(file),
      changed_(std::make_shared<std::function<void()>>(std::move(changed))),
      end_(eventfd(0, EFD_CLOEXEC)) {
  if (watchFolders()) thread_ = std::thread([this] { run(); });
}

bool FileWatcher::watchFolders() {
  try {
    createFolders(file_.parent_path());
  } catch (const std::system_error&) {
    // Watching it fails then, which is logged.
  }
  std::error_code ignored;
  target_ = fs::weakly_canonical(file_, ignored);
  news_ = FileDescriptor(inotify_init1(IN_CLOEXEC | IN_NONBLOCK));
  if (!watchFolder(news_.get(), file_.parent_path())) {
    log("FileWatcher", "cannot watch " + file_.parent_path().string());
    return false;
  }
  watchFolder(news_.get(), target_.parent_path());
  return true;
}

FileWatcher::~FileWatcher() {
  if (!thread_.joinable()) return;
  eventfd_write(end_.get(), 1);
  thread_.join();
}

void FileWatcher::run() {
  for (;;) {
    std::array<pollfd, 2> files = {pollfd{news_.get(), POLLIN, 0}, pollfd{end_.get(), POLLIN, 0}};
    poll(files.data(), files.size(), -1);
    if (files[1].revents != 0) return;
    const News news = takeNews();
    if (news.isFolderGone) {
      log("FileWatcher", "has gone, and is made again: " + file_.parent_path().string());
      if (!watchFolders()) return;
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
      news.isOfFile = news.isOfFile || name == file_.filename() || name == target_.filename();
      news.isFolderGone = news.isFolderGone || (event.mask & (IN_DELETE_SELF | IN_MOVE_SELF)) != 0;
      at += static_cast<ssize_t>(sizeof(event) + event.len);
    }
  }
}

}  // namespace tessarin::freedesktop
