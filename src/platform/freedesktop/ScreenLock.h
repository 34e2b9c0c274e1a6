#pragma once

#include <atomic>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <thread>

#include "base/FileDescriptor.h"

struct DBusConnection;
struct DBusMessage;

namespace tessarin::freedesktop {

/// Whether the session's screen saver or locker covers the screen, as those say on the session bus. Where
/// none of them is there, the screen counts as not locked. A thread of its own listens, asleep otherwise.
class ScreenLock {
 public:
  /// `address` as in DBUS_SESSION_BUS_ADDRESS; empty takes the session's own. Null when there is no bus.
  static std::unique_ptr<ScreenLock> connect(const std::string& address = {});
  ~ScreenLock();
  ScreenLock(const ScreenLock&) = delete;
  ScreenLock& operator=(const ScreenLock&) = delete;

  /// Any thread; only a look at memory.
  bool isLocked() const { return isLocked_; }

 private:
  struct Close {
    void operator()(DBusConnection* connection) const;
  };
  using Bus = std::unique_ptr<DBusConnection, Close>;

  explicit ScreenLock(Bus bus);
  void listen();
  void askForState(const std::string& service);
  void run();
  void handle(DBusMessage* message);
  void handleSignal(DBusMessage* message);
  void handleAnswer(DBusMessage* message);
  void set(const std::string& service, bool isActive);

  Bus bus_;
  FileDescriptor end_;
  std::map<std::string, bool> active_;              // by service
  std::map<std::uint32_t, std::string> questions_;  // services by the serial of our call
  std::atomic<bool> isLocked_ = false;
  std::thread thread_;
};

}  // namespace tessarin::freedesktop
