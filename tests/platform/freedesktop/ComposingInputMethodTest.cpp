#include <dbus/dbus.h>
#include <gtest/gtest.h>

#include <fstream>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/freedesktop/ComposingInputMethod.h"
#include "support/Eventually.h"
#include "support/TemporaryFolder.h"
#include "support/desktop/BusService.h"
#include "support/desktop/PrivateBus.h"

namespace tessarin::testing {
namespace {

using freedesktop::ComposingInputMethod;
using State = ComposingInputMethod::State;

/// A service with an engine in use.
class Engines : public BusService {
 public:
  Engines(const std::string& address, const std::string& name, std::string engine)
      : BusService(address, name), engine_(std::move(engine)) {}

  /// Changes without a word.
  void use(const std::string& engine) {
    const std::scoped_lock lock(mutex_);
    engine_ = engine;
  }
  int questions() const { return questions_; }

 protected:
  std::string engine() {
    const std::scoped_lock lock(mutex_);
    return engine_;
  }
  std::atomic<int> questions_ = 0;

 private:
  std::mutex mutex_;
  std::string engine_;
};

class Fcitx final : public Engines {
 public:
  Fcitx(const std::string& address, const std::string& engine)
      : Engines(address, "org.fcitx.Fcitx5", engine) {
    start();
  }
  ~Fcitx() override { stop(); }
  void tellPanel() { send(dbus_message_new_signal("/kimpanel", "org.kde.kimpanel.inputmethod", "Enable")); }
  std::atomic<bool> isHanging = false;

 private:
  DBusMessage* answer(DBusMessage* question) override {
    if (dbus_message_has_member(question, "CurrentInputMethod") == 0) return nullptr;
    ++questions_;
    if (isHanging) return nullptr;
    DBusMessage* reply = dbus_message_new_method_return(question);
    const std::string name = engine();
    const char* text = name.c_str();
    dbus_message_append_args(reply, DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    return reply;
  }
};

class IBus final : public Engines {
 public:
  IBus(const std::string& address, const std::string& engine)
      : Engines(address, "org.freedesktop.IBus", engine) {
    start();
  }
  ~IBus() override { stop(); }

  void switchTo(const std::string& engine) {
    use(engine);
    DBusMessage* signal =
        dbus_message_new_signal("/org/freedesktop/IBus", "org.freedesktop.IBus", "GlobalEngineChanged");
    const char* text = engine.c_str();
    dbus_message_append_args(signal, DBUS_TYPE_STRING, &text, DBUS_TYPE_INVALID);
    send(signal);
  }

 private:
  DBusMessage* answer(DBusMessage* question) override {
    if (dbus_message_has_member(question, "Get") == 0) return nullptr;
    ++questions_;
    const std::string name = engine();
    if (name.empty()) return dbus_message_new_error(question, DBUS_ERROR_FAILED, "No global engine.");
    DBusMessage* reply = dbus_message_new_method_return(question);
    DBusMessageIter levels[5];
    dbus_message_iter_init_append(reply, &levels[0]);
    dbus_message_iter_open_container(&levels[0], DBUS_TYPE_VARIANT, "v", &levels[1]);
    dbus_message_iter_open_container(&levels[1], DBUS_TYPE_VARIANT, "(sa{sv}ss)", &levels[2]);
    dbus_message_iter_open_container(&levels[2], DBUS_TYPE_STRUCT, nullptr, &levels[3]);
    appendDescription(levels[3], name);
    for (int level = 2; level >= 0; --level) {
      dbus_message_iter_close_container(&levels[level], &levels[level + 1]);
    }
    return reply;
  }
  static void appendDescription(DBusMessageIter& fields, const std::string& name) {
    const char* type = "IBusEngineDesc";
    const char* text = name.c_str();
    DBusMessageIter attachments;
    dbus_message_iter_append_basic(&fields, DBUS_TYPE_STRING, static_cast<const void*>(&type));
    dbus_message_iter_open_container(&fields, DBUS_TYPE_ARRAY, "{sv}", &attachments);
    dbus_message_iter_close_container(&fields, &attachments);
    dbus_message_iter_append_basic(&fields, DBUS_TYPE_STRING, static_cast<const void*>(&text));
    dbus_message_iter_append_basic(&fields, DBUS_TYPE_STRING, static_cast<const void*>(&type));
  }
};

class ComposingInputMethodTest : public ::testing::Test {
 protected:
  void leaveAddress(const std::string& address) {
    std::ofstream(folder.path() / "address")
        << "# a comment\nIBUS_ADDRESS=" << address << "\nIBUS_DAEMON_PID=1\n";
  }
  bool becomes(State state) {
    return eventually([&] { return method->state() == state; });
  }
  void connect(const std::string& sessionAddress) {
    method = std::make_unique<ComposingInputMethod>(
        sessionAddress, [this](const std::string& name) -> std::optional<std::string> {
          if (name == "IBUS_ADDRESS_FILE") return (folder.path() / "address").string();
          return std::nullopt;
        });
  }

  TemporaryFolder folder;
  PrivateBus session;
  PrivateBus daemon;
  std::unique_ptr<ComposingInputMethod> method;
};

struct Row {
  const char* engine;
  bool composes;
};

TEST_F(ComposingInputMethodTest, KnowsTheEnginesOfIBus) {
  leaveAddress(daemon.address());
  for (const auto& [engine, composes] :
       {Row{"xkb:us::eng", false}, {"anthy", true}, {"m17n:vi:telex", true}, {"", false}}) {
    IBus ibus(daemon.address(), engine);
    connect(session.address());
    ASSERT_TRUE(eventually([&] { return ibus.questions() > 0; }));
    EXPECT_TRUE(becomes(composes ? State::yes : State::no)) << "at the start: " << engine;
    ibus.switchTo(composes ? "xkb:us::eng" : "anthy");
    EXPECT_TRUE(becomes(composes ? State::no : State::yes));
    ibus.switchTo(engine);
    EXPECT_TRUE(becomes(composes ? State::yes : State::no)) << "switched to: " << engine;
  }
}

TEST_F(ComposingInputMethodTest, KnowsTheInputMethodsOfFcitx) {
  for (const auto& [engine, composes] : {Row{"pinyin", true}, {"keyboard-us", false}, {"", false}}) {
    Fcitx fcitx(session.address(), engine);
    connect(session.address());
    ASSERT_TRUE(eventually([&] { return fcitx.questions() > 0; }));
    EXPECT_TRUE(becomes(composes ? State::lastTime : State::no)) << engine;
    fcitx.use(composes ? "keyboard-us" : "pinyin");
    method->lookAgain();
    EXPECT_TRUE(becomes(composes ? State::no : State::lastTime)) << "after: " << engine;
    fcitx.use(engine);
    fcitx.tellPanel();
    EXPECT_TRUE(becomes(composes ? State::lastTime : State::no)) << "told the panel: " << engine;
  }
}

TEST_F(ComposingInputMethodTest, ServicesComeAndGo) {
  connect(session.address());
  for (int round = 1; round <= 2; ++round) {
    std::optional<Fcitx> fcitx(std::in_place, session.address(), "pinyin");
    EXPECT_TRUE(becomes(State::lastTime));
    fcitx.reset();
    EXPECT_TRUE(becomes(State::no));

    PrivateBus later;
    const IBus ibus(later.address(), "anthy");
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
  const IBus ibus(daemon.address(), "anthy");
  leaveAddress(daemon.address());
  EXPECT_TRUE(becomes(State::yes)) << "without being asked";
  leaveAddress("");
  EXPECT_TRUE(becomes(State::no));
}

TEST_F(ComposingInputMethodTest, OneThatHangsIsAskedOnce) {
  Fcitx fcitx(session.address(), "pinyin");
  connect(session.address());
  ASSERT_TRUE(becomes(State::lastTime));
  fcitx.isHanging = true;
  const int before = fcitx.questions();
  for (int key = 0; key < 100; ++key) {
    method->lookAgain();
    std::this_thread::yield();
  }
  EXPECT_TRUE(eventually([&] { return fcitx.questions() == before + 1; }));
  { const IBus ibus(daemon.address(), "anthy"); }
  EXPECT_EQ(fcitx.questions(), before + 1);
  method.reset();  // and it is not waited for
}

}  // namespace
}  // namespace tessarin::testing
