#include "platform/freedesktop/ScreenLock.h"

#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <utility>

#include "platform/freedesktop/LockSource.h"
#include "platform/freedesktop/ScreenSavers.h"
#include "platform/freedesktop/SessionLockHint.h"

namespace tessarin::freedesktop {

std::unique_ptr<ScreenLock> ScreenLock::connect(const std::string& session, const std::string& system) {
  std::vector<std::unique_ptr<LockSource>> sources;
  if (auto bus = openBus(DBUS_BUS_SESSION, session)) {
    sources.push_back(std::make_unique<ScreenSavers>(std::move(bus)));
  }
  if (auto bus = openBus(DBUS_BUS_SYSTEM, system)) {
    sources.push_back(std::make_unique<SessionLockHint>(std::move(bus)));
  }
  if (sources.empty()) return nullptr;
  return std::unique_ptr<ScreenLock>(new ScreenLock(std::move(sources)));
}

ScreenLock::ScreenLock(std::vector<std::unique_ptr<LockSource>> sources)
    : sources_(std::move(sources)), end_(eventfd(0, EFD_CLOEXEC)) {
  thread_ = std::thread([this] { run(); });
}

ScreenLock::~ScreenLock() {
  eventfd_write(end_.get(), 1);
  thread_.join();
}

void ScreenLock::run() {
  for (;;) {
    std::vector<pollfd> files{{end_.get(), POLLIN, 0}};
    for (const auto& source : sources_) {
      const int file = source->work();
      files.push_back({file, source->events(), 0});
    }
    isLocked_ = std::ranges::any_of(sources_, [](const auto& source) { return source->isLocked(); });
    poll(files.data(), files.size(), -1);
    if (files.front().revents != 0) return;
  }
}

}  // namespace tessarin::freedesktop
