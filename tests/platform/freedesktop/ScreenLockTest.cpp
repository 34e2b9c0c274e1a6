#include <dbus/dbus.h>
#include <gtest/gtest.h>

#include <atomic>

#include "platform/freedesktop/ScreenLock.h"
#include "support/Eventually.h"
#include "support/desktop/BusService.h"
#include "support/desktop/PrivateBus.h"

namespace tessarin::testing {
namespace {

using freedesktop::ScreenLock;

constexpr const char* noBus = "unix:path=/nonexistent/bus";

/// A locker that says whether it covers the screen.
class Locker final : public BusService {
 public:
  Locker(const std::string& address, const std::string& name, bool isActive)
      : BusService(address, name), name_(name), isActive_(isActive) {
    start();
  }
  ~Locker() override { stop(); }

  void tell(bool isActive) {
    isActive_ = isActive;
    DBusMessage* signal = dbus_message_new_signal("/locker", name_.c_str(), "ActiveChanged");
    const dbus_bool_t value = isActive ? 1 : 0;
    dbus_message_append_args(signal, DBUS_TYPE_BOOLEAN, &value, DBUS_TYPE_INVALID);
    send(signal);
  }

 private:
  DBusMessage* answer(DBusMessage* question) override {
    if (dbus_message_has_member(question, "GetActive") == 0) return nullptr;
    DBusMessage* reply = dbus_message_new_method_return(question);
    const dbus_bool_t value = isActive_ ? 1 : 0;
    dbus_message_append_args(reply, DBUS_TYPE_BOOLEAN, &value, DBUS_TYPE_INVALID);
    return reply;
  }

  std::string name_;
  std::atomic<bool> isActive_;
};

/// The list of sessions, with one in it.
class Sessions final : public BusService {
 public:
  Sessions(const std::string& address, bool isLocked)
      : BusService(address, "org.freedesktop.login1"), isLocked_(isLocked) {
    start();
  }
  ~Sessions() override { stop(); }

  void mark(bool isLocked) {
    isLocked_ = isLocked;
    DBusMessage* signal = dbus_message_new_signal(path, DBUS_INTERFACE_PROPERTIES, "PropertiesChanged");
    const char* interface = "org.freedesktop.login1.Session";
    dbus_message_append_args(signal, DBUS_TYPE_STRING, &interface, DBUS_TYPE_INVALID);
    send(signal);
  }

 private:
  static constexpr const char* path = "/org/freedesktop/login1/session/_31";

  DBusMessage* answer(DBusMessage* question) override {
    const char* interface = nullptr;
    const char* property = nullptr;
    const bool isKnown = dbus_message_has_path(question, "/org/freedesktop/login1/session/auto") != 0 &&
                         dbus_message_get_args(question, nullptr, DBUS_TYPE_STRING, &interface,
                                               DBUS_TYPE_STRING, &property, DBUS_TYPE_INVALID) != 0 &&
                         std::string(property) == "LockedHint";
    if (!isKnown) return nullptr;
    DBusMessage* reply = dbus_message_new_method_return(question);
    DBusMessageIter arguments;
    DBusMessageIter variant;
    const dbus_bool_t value = isLocked_ ? 1 : 0;
    dbus_message_iter_init_append(reply, &arguments);
    dbus_message_iter_open_container(&arguments, DBUS_TYPE_VARIANT, "b", &variant);
    dbus_message_iter_append_basic(&variant, DBUS_TYPE_BOOLEAN, &value);
    dbus_message_iter_close_container(&arguments, &variant);
    return reply;
  }

  std::atomic<bool> isLocked_;
};

class ScreenLockTest : public ::testing::TestWithParam<const char*> {
 protected:
  bool becomes(bool isLocked) {
    return eventually([&] { return lock->isLocked() == isLocked; });
  }
  PrivateBus bus;
  std::unique_ptr<ScreenLock> lock = ScreenLock::connect(bus.address(), noBus);
};

TEST_P(ScreenLockTest, FollowsTheLocker) {
  ASSERT_TRUE(lock);
  EXPECT_FALSE(lock->isLocked());
  {
    Locker locker(bus.address(), GetParam(), true);
    EXPECT_TRUE(becomes(true)) << "it came after the one that was there";
    const auto later = ScreenLock::connect(bus.address(), noBus);
    EXPECT_TRUE(eventually([&] { return later->isLocked(); })) << "it is active already";
    locker.tell(false);
    EXPECT_TRUE(becomes(false));
    locker.tell(true);
    EXPECT_TRUE(becomes(true));
  }
  EXPECT_TRUE(becomes(false)) << "a locker that has ended covers nothing";
}

INSTANTIATE_TEST_SUITE_P(Services, ScreenLockTest,
                         ::testing::Values("org.freedesktop.ScreenSaver", "org.gnome.ScreenSaver"));

class SessionLockTest : public ::testing::Test {
 protected:
  bool becomes(bool isLocked) {
    return eventually([&] { return lock->isLocked() == isLocked; });
  }
  PrivateBus system;
  PrivateBus session;
  std::unique_ptr<ScreenLock> lock = ScreenLock::connect(session.address(), system.address());
};

TEST_F(SessionLockTest, FollowsTheMarkOfTheSession) {
  {
    Sessions sessions(system.address(), true);
    EXPECT_TRUE(becomes(true)) << "marked already when the list appeared";
    sessions.mark(false);
    EXPECT_TRUE(becomes(false));
    sessions.mark(true);
    EXPECT_TRUE(becomes(true));
  }
  EXPECT_TRUE(becomes(false)) << "the list has gone";
}

TEST_F(SessionLockTest, EitherBusIsEnough) {
  Sessions sessions(system.address(), true);
  EXPECT_TRUE(becomes(true));
  const auto alone = ScreenLock::connect(noBus, system.address());
  ASSERT_TRUE(alone);
  EXPECT_TRUE(eventually([&] { return alone->isLocked(); }));
  Locker locker(session.address(), "org.gnome.ScreenSaver", true);
  sessions.mark(false);
  EXPECT_TRUE(eventually([&] { return !alone->isLocked(); }));
  EXPECT_TRUE(becomes(true)) << "the locker still covers it";
  session.stop();
  EXPECT_TRUE(becomes(false));
}

}  // namespace
}  // namespace tessarin::testing
