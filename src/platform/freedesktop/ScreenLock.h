#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "base/FileDescriptor.h"

namespace tessarin::freedesktop {

class LockSource;

/// Whether the screen is locked: as screen savers and lockers say on the session bus, and as the session is
/// marked in the system's list of sessions. Where nobody says anything, the screen counts as not locked. A
/// thread of its own listens, asleep otherwise.
class ScreenLock {
 public:
  /// `session` and `system` as in DBUS_SESSION_BUS_ADDRESS; empty takes the session's own. Null when there is
  /// neither bus.
  static std::unique_ptr<ScreenLock> connect(const std::string& session = {}, const std::string& system = {});
  ~ScreenLock();
  ScreenLock(const ScreenLock&) = delete;
  ScreenLock& operator=(const ScreenLock&) = delete;

  /// Any thread; only a look at memory.
  bool isLocked() const { return isLocked_; }

 private:
  explicit ScreenLock(std::vector<std::unique_ptr<LockSource>> sources);
  void run();

  std::vector<std::unique_ptr<LockSource>> sources_;
  FileDescriptor end_;
  std::atomic<bool> isLocked_ = false;
  std::thread thread_;
};

}  // namespace tessarin::freedesktop
