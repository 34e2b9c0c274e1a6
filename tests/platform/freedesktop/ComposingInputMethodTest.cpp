#include <mutex>

#include "platform/freedesktop/ComposingInputMethod.h"
#include "support/Eventually.h"
#include "support/TemporaryFolder.h"
#include "support/desktop/BusService.h"

namespace tessarin::testing {
namespace {

using freedesktop::ComposingInputMethod;
using State = ComposingInputMethod::State;

enum class Kind { ibus, fcitx };

/// The daemon of an input method with an engine in use.
class Daemon {
 public:
  Daemon(Kind kind, const std::string& address, std::string engine)
      : kind_(kind),
        engine_(std::move(engine)),
        service_(address, kind == Kind::ibus ? "org.freedesktop.IBus" : "org.fcitx.Fcitx5",
                 [this](auto* question) { return answer(question); }) {}

  /// Changes without a word.
  void use(const std::string& engine) {
    const std::scoped_lock lock(mutex_);
    engine_ = engine;
  }
  void tellChange() {
    DBusMessage* signal =
        kind_ == Kind::ibus
            ? dbus_message_new_signal("/org/freedesktop/IBus", "org.freedesktop.IBus", "GlobalEngineChanged")
            : dbus_message_new_signal("/kimpanel", "org.kde.kimpanel.inputmethod", "Enable");
    const char* name = engine_.c_str();
    dbus_message_append_args(signal, DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID);
    service_.send(signal);
  }
  int questions() const { return questions_; }
  std::atomic<bool> isHanging = false;

 private:
  DBusMessage* answer(DBusMessage* question) {
    const char* member = kind_ == Kind::ibus ? "Get" : "CurrentInputMethod";
    if (dbus_message_has_member(question, member) == 0) return nullptr;
    ++questions_;
    if (isHanging) return nullptr;
    const std::scoped_lock lock(mutex_);
    if (kind_ == Kind::ibus && engine_.empty()) {
      return dbus_message_new_error(question, DBUS_ERROR_FAILED, "No global engine.");
    }
    DBusMessage* reply = dbus_message_new_method_return(question);
    const char* name = engine_.c_str();
    if (kind_ == Kind::ibus) appendDescription(reply, name);
    if (kind_ == Kind::fcitx) dbus_message_append_args(reply, DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID);
    return reply;
  }
  static void appendDescription(DBusMessage* reply, const char* name) {
    const char* type = "IBusEngineDesc";
    DBusMessageIter levels[5];
    dbus_message_iter_init_append(reply, &levels[0]);
    dbus_message_iter_open_container(&levels[0], DBUS_TYPE_VARIANT, "v", &levels[1]);
    dbus_message_iter_open_container(&levels[1], DBUS_TYPE_VARIANT, "(sa{sv}ss)", &levels[2]);
    dbus_message_iter_open_container(&levels[2], DBUS_TYPE_STRUCT, nullptr, &levels[3]);
    dbus_message_iter_append_basic(&levels[3], DBUS_TYPE_STRING, static_cast<const void*>(&type));
    dbus_message_iter_open_container(&levels[3], DBUS_TYPE_ARRAY, "{sv}", &levels[4]);
    dbus_message_iter_close_container(&levels[3], &levels[4]);
    dbus_message_iter_append_basic(&levels[3], DBUS_TYPE_STRING, static_cast<const void*>(&name));
    dbus_message_iter_append_basic(&levels[3], DBUS_TYPE_STRING, static_cast<const void*>(&type));
    for (int level = 2; level >= 0; --level) {
      dbus_message_iter_close_container(&levels[level], &levels[level + 1]);
    }
  }

  Kind kind_;
  std::atomic<int> questions_ = 0;
  std::mutex mutex_;
  std::string engine_;
  BusService service_;
};

class ComposingInputMethodTest : public ::testing::Test {
 protected:
  void leaveAddress(const std::string& address) {
    folder.write("address", "# a comment\nIBUS_ADDRESS=" + address + "\nIBUS_DAEMON_PID=1\n");
  }
  bool becomes(State state) {
    return eventually([&] { return method->state() == state; });
  }
  void connect(const std::string& sessionAddress) {
    method = std::make_unique<ComposingInputMethod>(sessionAddress, [this](const std::string& name) {
      const bool isAsked = name == "IBUS_ADDRESS_FILE";
      return isAsked ? std::optional((folder / "address").string()) : std::nullopt;
    });
  }

  TemporaryFolder folder;
  PrivateBus session;
  PrivateBus daemon;
  std::unique_ptr<ComposingInputMethod> method;
};

TEST_F(ComposingInputMethodTest, KnowsTheEngines) {
  struct Row {
    Kind kind;
    const char* engine;
    bool composes;
  };
  const Row rows[] = {
      {Kind::ibus, "xkb:us::eng", false}, {Kind::ibus, "anthy", true},         {Kind::ibus, "", false},
      {Kind::fcitx, "pinyin", true},      {Kind::fcitx, "keyboard-us", false}, {Kind::fcitx, "", false}};
  leaveAddress(daemon.address());
  for (const auto& [kind, engine, composes] : rows) {
    SCOPED_TRACE(engine);
    const bool isIBus = kind == Kind::ibus;
    const State yes = isIBus ? State::yes : State::lastTime;
    Daemon asked(kind, isIBus ? daemon.address() : session.address(), engine);
    connect(session.address());
    ASSERT_TRUE(eventually([&] { return asked.questions() > 0; }));
    EXPECT_TRUE(becomes(composes ? yes : State::no)) << "at the start";
    asked.use(!composes ? "anthy" : isIBus ? "xkb:us::eng" : "keyboard-us");
    asked.tellChange();
    EXPECT_TRUE(becomes(composes ? State::no : yes)) << "told of another";
    asked.use(engine);
    isIBus ? asked.tellChange() : method->lookAgain();
    EXPECT_TRUE(becomes(composes ? yes : State::no)) << "and back";
  }
}

TEST_F(ComposingInputMethodTest, ServicesComeAndGo) {
  connect(session.address());
  for (int round = 1; round <= 2; ++round) {
    std::optional<Daemon> fcitx(std::in_place, Kind::fcitx, session.address(), "pinyin");
    EXPECT_TRUE(becomes(State::lastTime));
    fcitx.reset();
    EXPECT_TRUE(becomes(State::no));

    PrivateBus later;
    const Daemon ibus(Kind::ibus, later.address(), "anthy");
    leaveAddress(later.address());
    method->lookAgain();
    EXPECT_TRUE(becomes(State::yes)) << "a daemon that came later";
    later.stop();
    EXPECT_TRUE(becomes(State::no)) << "its bus crashed";
  }
}

TEST_F(ComposingInputMethodTest, GoesToTheDaemonThatWroteLast) {
  // Fcitx leaves the address of the session's bus, which stays when it goes.
  leaveAddress(session.address());
  connect(session.address());
  const Daemon ibus(Kind::ibus, daemon.address(), "anthy");
  leaveAddress(daemon.address());
  EXPECT_TRUE(becomes(State::yes)) << "without being asked";
  leaveAddress("");
  EXPECT_TRUE(becomes(State::no));
}

TEST_F(ComposingInputMethodTest, OneThatHangsIsAskedOnce) {
  Daemon fcitx(Kind::fcitx, session.address(), "pinyin");
  connect(session.address());
  ASSERT_TRUE(becomes(State::lastTime));
  fcitx.isHanging = true;
  const int before = fcitx.questions();
  for (int key = 0; key < 100; ++key) {
    method->lookAgain();
    std::this_thread::yield();
  }
  EXPECT_TRUE(eventually([&] { return fcitx.questions() == before + 1; }));
  { const Daemon ibus(Kind::ibus, daemon.address(), "anthy"); }
  EXPECT_EQ(fcitx.questions(), before + 1);
  method.reset();  // and it is not waited for
}

}  // namespace
}  // namespace tessarin::testing
