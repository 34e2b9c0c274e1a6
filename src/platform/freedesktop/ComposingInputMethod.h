#pragma once

#include <atomic>
#include <memory>
#include <string>
#include <thread>

#include "base/Environment.h"
#include "base/FileDescriptor.h"
#include "platform/freedesktop/FcitxInputMethod.h"
#include "platform/freedesktop/IBusAddress.h"
#include "platform/freedesktop/IBusEngine.h"

struct pollfd;

namespace tessarin::freedesktop {

/// Whether keys go through an input method that makes text of several of them, as for Chinese, Japanese,
/// Korean or Vietnamese: of IBus, or of Fcitx 5. Both may come, go and crash. A thread of its own listens,
/// asleep otherwise.
class ComposingInputMethod {
 public:
  enum class State {
    no,
    yes,
    lastTime,  ///< it did when it was last asked, and does not tell of changes by itself
  };

  /// `session` as in DBUS_SESSION_BUS_ADDRESS; empty takes the session's own.
  explicit ComposingInputMethod(const std::string& session = {},
                                const Environment& environment = processEnvironment);
  ~ComposingInputMethod();
  ComposingInputMethod(const ComposingInputMethod&) = delete;
  ComposingInputMethod& operator=(const ComposingInputMethod&) = delete;

  /// Any thread; only a look at memory.
  State state() const { return state_; }
  /// Any thread: has the services asked again where they do not tell by themselves. Does not wait for them.
  void lookAgain();

 private:
  void run();
  void waitFor(pollfd fcitx, pollfd ibus);
  void followIBus();
  pollfd workFcitx();
  pollfd workIBus();
  State currentState() const;

  std::unique_ptr<FcitxInputMethod> fcitx_;
  IBusAddress ibusAddress_;
  std::string usedAddress_;
  std::unique_ptr<IBusEngine> ibus_;
  FileDescriptor wake_;
  std::atomic<bool> isEnding_ = false;
  std::atomic<State> state_ = State::no;
  std::thread thread_;
};

}  // namespace tessarin::freedesktop
