#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <thread>
#include <vector>

#include "platform/EventTap.h"
#include "platform/KeyPoster.h"
#include "platform/MainQueue.h"
#include "platform/x11/Handles.h"
#include "platform/x11/KeyJudge.h"
#include "platform/x11/TapControl.h"

namespace tessarin::x11 {

/// The session's keyboard: one thread with one connection, shared by the tap and the poster so that what they
/// do stands in one order. Main thread.
class X11Keyboard {
 public:
  /// `queue` outlives this. `display` as in DISPLAY; empty for that variable's value.
  /// `answerTime`: what the main thread has for each key.
  explicit X11Keyboard(MainQueue& queue, std::string display = {},
                       std::chrono::milliseconds answerTime = KeyQuestion::answerTime);
  /// Passes on what is kept and lets go of every key.
  ~X11Keyboard();
  X11Keyboard(const X11Keyboard&) = delete;
  X11Keyboard& operator=(const X11Keyboard&) = delete;

  /// Connects and starts the thread, unless that has been done. False where the session has no key tap that
  /// can be used.
  bool start();

  MainQueue& queue() { return queue_; }
  KeyJudge& judge() { return judge_; }
  TapControl& control() { return control_; }

 private:
  MainQueue& queue_;
  std::string display_;
  TapControl control_;
  KeyJudge judge_;
  Connection connection_;
  std::thread thread_;
};

/// Whether keys can be held and made on this connection: XInput 2.2, XTest and XKB are there, and this is no
/// Wayland session, where only some windows would be covered.
bool canTapKeys(xcb_connection_t* connection);

}  // namespace tessarin::x11
