#pragma once

#include <sys/types.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/FileDescriptor.h"
#include "keywatch/KeyWatchMessage.h"
#include "platform/x11/SessionKeyboard.h"

namespace tessarin::x11 {

/// The small process that closes the tap's connection to the server when our process stands still with keys
/// held, so that the user gets the keyboard back. It asks from time to time while keys are held, and wants an
/// answer. It ends with this object, and with our process. Keyboard thread.
class KeyWatch {
 public:
  struct Options {
    std::string program;                         ///< the watcher's file; empty for no watcher
    std::string display;                         ///< as in DISPLAY; empty for that variable's value
    std::function<void(pid_t watcher)> started;  ///< told of each watcher; does not wait
  };

  /// The keyboard's connection outlives this. Where no watcher can be had the log says so, and all else
  /// works.
  KeyWatch(Options options, const SessionKeyboard& keyboard);
  ~KeyWatch();
  /// There is another connection.
  void follow(const SessionKeyboard& keyboard);
  KeyWatch(const KeyWatch&) = delete;
  KeyWatch& operator=(const KeyWatch&) = delete;

  /// To be said before keys are held at another window than the root, and with none when they no longer are.
  void keysHeldAt(xcb_window_t window) { say(KeyWatchMessage::Kind::keysHeldAt, window); }
  /// To be said before keys are typed.
  void working() { say(KeyWatchMessage::Kind::working, 0); }
  /// Answers the watcher, if it has asked, in the middle of work that may take long.
  void sayAlive();
  /// Takes in what the watcher says. To be called before looking for held keys.
  void listen();
  /// Answers what `listen` heard: since then, no held key was found. A watcher that has died is replaced,
  /// once a minute at most.
  void sayIdle();

  /// Readable when there is something to hear; -1 without a watcher.
  int descriptor() const { return socket_.get(); }
  /// Whether the watcher has let every key by and closed the connection, as far as `listen` heard.
  bool hasLetGo() const { return hasLetGo_; }

 private:
  void start();
  void end();
  void replace();
  void sayConnection();
  void say(KeyWatchMessage::Kind kind, std::uint32_t value);
  void answer(KeyWatchMessage::Kind kind);

  Options options_;
  SessionKeyboard keyboard_;
  FileDescriptor socket_;
  pid_t process_ = -1;
  std::optional<std::uint32_t> question_;                          ///< asked last and not yet answered
  std::optional<std::chrono::steady_clock::time_point> replaced_;  ///< the last time
  bool hasLetGo_ = false;
  bool hasGone_ = false;
};

}  // namespace tessarin::x11
