#pragma once

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/EventTap.h"
#include "platform/KeyPoster.h"
#include "platform/MainQueue.h"
#include "platform/x11/Handles.h"
#include "platform/x11/KeyFilter.h"
#include "platform/x11/KeyJudge.h"
#include "platform/x11/SessionKeyboard.h"
#include "platform/x11/TapControl.h"

namespace tessarin::x11 {

/// The session's keyboard: one thread with one connection, shared by the tap and the poster so that what they
/// do stands in one order. A lost connection is made anew, unless the server has gone. Main thread.
class X11Keyboard {
 public:
  struct Options {
    std::string display = {};  ///< as in DISPLAY; empty for that variable's value
    std::string watcher = {};  ///< the file of the program that watches us, see KeyWatch; empty for none
    std::chrono::milliseconds answerTime = KeyQuestion::answerTime;  ///< what the main thread has for a key
    std::function<void(pid_t watcher)> watcherStarted = {};  ///< see KeyWatch; on the keyboard's thread
  };

  /// `queue` outlives this.
  X11Keyboard(MainQueue& queue, Options options);
  /// Passes on what is kept and lets go of every key.
  ~X11Keyboard() { stop(); }
  X11Keyboard(const X11Keyboard&) = delete;
  X11Keyboard& operator=(const X11Keyboard&) = delete;

  /// Connects and starts the thread, unless that has been done. False where the session has no key tap that
  /// can be used.
  bool start();
  /// Lets go of every key and of the server while the work is done, which may stop the whole process. The
  /// tap's owner is told that it was switched off.
  void withoutKeyboard(const std::function<void()>& work);

  MainQueue& queue() { return queue_; }
  KeyJudge& judge() { return judge_; }
  TapControl& control() { return control_; }

 private:
  void stop();
  std::optional<SessionKeyboard> connect();
  void serve(SessionKeyboard keyboard);
  std::optional<KeyFilter::Loss> serveConnection(const SessionKeyboard& keyboard, KeyWatch& watch,
                                                 const KeySet& leftPressed);

  MainQueue& queue_;
  Options options_;
  TapControl control_;
  KeyJudge judge_;
  Connection connection_;  ///< the thread's, while it serves
  std::thread thread_;
  std::atomic<bool> isServing_ = false;
};

/// Whether keys can be held and made on this connection: XInput 2.2, XTest and XKB are there, and this is no
/// Wayland session, where only some windows would be covered.
bool canTapKeys(xcb_connection_t* connection);

}  // namespace tessarin::x11
