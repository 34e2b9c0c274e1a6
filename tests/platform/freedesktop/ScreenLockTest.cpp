#include "platform/freedesktop/ScreenLock.h"
#include "support/Eventually.h"
#include "support/desktop/BusService.h"

namespace tessarin::testing {
namespace {

using freedesktop::ScreenLock;

constexpr const char* noBus = "unix:path=/nonexistent/bus";

constexpr const char* sessionList = "org.freedesktop.login1";

/// A service that says whether the screen is locked: a locker, or the list of sessions with one in it.
class Locker {
 public:
  Locker(const std::string& address, const std::string& name, bool isLocked)
      : name_(name), isLocked_(isLocked), service_(address, name, [this](auto* q) { return answer(q); }) {}

  void tell(bool isLocked) {
    isLocked_ = isLocked;
    const dbus_bool_t value = isLocked ? 1 : 0;
    const char* interface = "org.freedesktop.login1.Session";
    DBusMessage* signal = nullptr;
    if (name_ == sessionList) {
      signal = dbus_message_new_signal("/org/freedesktop/login1/session/_31", DBUS_INTERFACE_PROPERTIES,
                                       "PropertiesChanged");
      dbus_message_append_args(signal, DBUS_TYPE_STRING, &interface, DBUS_TYPE_INVALID);
    } else {
      signal = dbus_message_new_signal("/locker", name_.c_str(), "ActiveChanged");
      dbus_message_append_args(signal, DBUS_TYPE_BOOLEAN, &value, DBUS_TYPE_INVALID);
    }
    service_.send(signal);
  }

 private:
  static bool asksForTheMark(DBusMessage* question) {
    const char* interface = nullptr;
    const char* property = nullptr;
    return dbus_message_has_path(question, "/org/freedesktop/login1/session/auto") != 0 &&
           dbus_message_get_args(question, nullptr, DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                                 DBUS_TYPE_INVALID) != 0 &&
           std::string(property) == "LockedHint";
  }
  DBusMessage* answer(DBusMessage* question) const {
    const bool isMark = name_ == sessionList;
    if (isMark ? !asksForTheMark(question) : dbus_message_has_member(question, "GetActive") == 0)
      return nullptr;
    DBusMessage* reply = dbus_message_new_method_return(question);
    DBusMessageIter arguments;
    DBusMessageIter variant;
    const dbus_bool_t value = isLocked_ ? 1 : 0;
    dbus_message_iter_init_append(reply, &arguments);
    if (isMark) dbus_message_iter_open_container(&arguments, DBUS_TYPE_VARIANT, "b", &variant);
    dbus_message_iter_append_basic(isMark ? &variant : &arguments, DBUS_TYPE_BOOLEAN, &value);
    if (isMark) dbus_message_iter_close_container(&arguments, &variant);
    return reply;
  }

  std::string name_;
  std::atomic<bool> isLocked_;
  BusService service_;
};

class ScreenLockTest : public ::testing::Test {
 protected:
  bool becomes(bool isLocked) {
    return eventually([&] { return lock->isLocked() == isLocked; });
  }
  PrivateBus system;
  PrivateBus session;
  std::unique_ptr<ScreenLock> lock = ScreenLock::connect(session.address(), system.address());
};

TEST_F(ScreenLockTest, FollowsEachService) {
  ASSERT_TRUE(lock);
  EXPECT_FALSE(lock->isLocked());
  const std::pair<const char*, const PrivateBus&> places[] = {
      {"org.freedesktop.ScreenSaver", session}, {"org.gnome.ScreenSaver", session}, {sessionList, system}};
  for (const auto& [service, bus] : places) {
    SCOPED_TRACE(service);
    {
      Locker locker(bus.address(), service, true);
      EXPECT_TRUE(becomes(true)) << "it came after the one that was there";
      const auto later = &bus == &system ? ScreenLock::connect(noBus, bus.address())
                                         : ScreenLock::connect(bus.address(), noBus);
      ASSERT_TRUE(later) << "either bus is enough";
      EXPECT_TRUE(eventually([&] { return later->isLocked(); })) << "it is locked already";
      locker.tell(false);
      EXPECT_TRUE(becomes(false));
      locker.tell(true);
      EXPECT_TRUE(becomes(true));
    }
    EXPECT_TRUE(becomes(false)) << "a locker that has ended covers nothing";
  }
}

TEST_F(ScreenLockTest, OneOfSeveralIsEnoughUntilItsBusHasGone) {
  Locker list(system.address(), sessionList, true);
  EXPECT_TRUE(becomes(true));
  const Locker locker(session.address(), "org.gnome.ScreenSaver", true);
  const auto alone = ScreenLock::connect(noBus, system.address());
  EXPECT_TRUE(eventually([&] { return alone->isLocked(); }));
  list.tell(false);
  EXPECT_TRUE(eventually([&] { return !alone->isLocked(); }));
  EXPECT_TRUE(becomes(true)) << "the locker still covers it";
  session.stop();
  EXPECT_TRUE(becomes(false));
}

}  // namespace
}  // namespace tessarin::testing
