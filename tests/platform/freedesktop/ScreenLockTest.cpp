#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <atomic>
#include <stdexcept>

#include "platform/atspi/BusCalls.h"
#include "platform/freedesktop/ScreenLock.h"
#include "support/Eventually.h"
#include "support/desktop/ChildProcess.h"

namespace tessarin::testing {
namespace {

using freedesktop::ScreenLock;

/// A session bus of the test's own.
class PrivateBus {
 public:
  PrivateBus() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    daemon_ = ChildProcess(
        {"dbus-daemon", "--session", "--nofork", "--print-address=" + std::to_string(ends[1])}, {}, ends[1]);
    close(ends[1]);
    for (char c = 0; read(ends[0], &c, 1) == 1 && c != '\n';) address_ += c;
    close(ends[0]);
  }
  const std::string& address() const { return address_; }
  void stop() { daemon_.stop(); }

 private:
  ChildProcess daemon_;
  std::string address_;
};

/// A locker that says whether it covers the screen.
class Locker {
 public:
  Locker(const std::string& address, const std::string& name, bool isActive)
      : name_(name), isActive_(isActive), bus_(atspi::connectTo(address)) {
    dbus_bus_request_name(bus_.get(), name.c_str(), DBUS_NAME_FLAG_DO_NOT_QUEUE, nullptr);
    thread_ = std::thread([this] { run(); });
  }
  ~Locker() {
    isEnding_ = true;
    thread_.join();
  }
  Locker(const Locker&) = delete;
  Locker& operator=(const Locker&) = delete;

  void tell(bool isActive) {
    isActive_ = isActive;
    send(dbus_message_new_signal("/locker", name_.c_str(), "ActiveChanged"));
  }

 private:
  void run() {
    while (!isEnding_) {
      dbus_connection_read_write(bus_.get(), 5);
      while (const atspi::MessagePtr call{dbus_connection_pop_message(bus_.get())}) {
        if (dbus_message_has_member(call.get(), "GetActive") != 0) {
          send(dbus_message_new_method_return(call.get()));
        }
      }
    }
  }
  void send(DBusMessage* news) {
    const atspi::MessagePtr owned(news);
    const dbus_bool_t value = isActive_ ? 1 : 0;
    dbus_message_append_args(news, DBUS_TYPE_BOOLEAN, &value, DBUS_TYPE_INVALID);
    dbus_connection_send(bus_.get(), news, nullptr);
    dbus_connection_flush(bus_.get());
  }

  std::string name_;
  std::atomic<bool> isActive_;
  atspi::ConnectionPtr bus_;
  std::atomic<bool> isEnding_ = false;
  std::thread thread_;
};

class ScreenLockTest : public ::testing::TestWithParam<const char*> {
 protected:
  bool becomes(bool isLocked) {
    return eventually([&] { return lock->isLocked() == isLocked; });
  }
  PrivateBus bus;
  std::unique_ptr<ScreenLock> lock = ScreenLock::connect(bus.address());
};

TEST_P(ScreenLockTest, FollowsTheLocker) {
  ASSERT_TRUE(lock);
  EXPECT_FALSE(lock->isLocked());
  Locker locker(bus.address(), GetParam(), false);
  locker.tell(true);
  EXPECT_TRUE(becomes(true));
  locker.tell(false);
  EXPECT_TRUE(becomes(false));
}

TEST_P(ScreenLockTest, KnowsALockerThatIsActiveAlready) {
  const Locker locker(bus.address(), GetParam(), true);
  const auto later = ScreenLock::connect(bus.address());
  EXPECT_TRUE(eventually([&] { return later->isLocked(); }));
  EXPECT_TRUE(becomes(true)) << "it came after the one that was there";
}

TEST_P(ScreenLockTest, ALockerThatHasEndedCoversNothing) {
  {
    Locker locker(bus.address(), GetParam(), true);
    EXPECT_TRUE(becomes(true));
  }
  EXPECT_TRUE(becomes(false));
}

INSTANTIATE_TEST_SUITE_P(Services, ScreenLockTest,
                         ::testing::Values("org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver"));

TEST_F(ScreenLockTest, OneOfSeveralIsEnough) {
  Locker first(bus.address(), "org.freedesktop.ScreenSaver", true);
  Locker second(bus.address(), "org.gnome.ScreenSaver", true);
  EXPECT_TRUE(becomes(true));
  first.tell(false);
  second.tell(true);
  EXPECT_TRUE(becomes(true));
  second.tell(false);
  EXPECT_TRUE(becomes(false));
}

TEST_F(ScreenLockTest, NothingIsLockedWhenTheBusHasGone) {
  Locker locker(bus.address(), "org.gnome.ScreenSaver", true);
  EXPECT_TRUE(becomes(true));
  bus.stop();
  EXPECT_TRUE(becomes(false));
}

TEST(ScreenLock, AnswersThatThereIsNoBus) {
  EXPECT_EQ(ScreenLock::connect("unix:path=/nonexistent/bus"), nullptr);
}

}  // namespace
}  // namespace tessarin::testing
