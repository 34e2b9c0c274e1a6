#pragma once

#include <chrono>
#include <memory>
#include <mutex>
#include <optional>

#include "platform/EventTap.h"
#include "platform/MainQueue.h"
#include "platform/x11/KeyQuestion.h"

namespace tessarin::x11 {

/// Carries keys from the keyboard thread to the tap's handler on the main thread, and the verdicts back.
class KeyJudge {
 public:
  KeyJudge(MainQueue& queue, std::chrono::milliseconds answerTime)
      : queue_(queue), answerTime_(answerTime), owner_(std::make_shared<Owner>()) {}

  /// Main thread. Without a handler every key passes.
  void setHandler(EventTap::Handler handler);

  /// Keyboard thread: waits for the handler's verdict. None when the main thread does not answer in time, or
  /// after `close`.
  std::optional<KeyVerdict> ask(const KeyEvent& event);
  /// Keyboard thread: the key asked about last has gone its way.
  void reportDeparture();
  /// Keyboard thread: tells the handler that the tap was switched off.
  void reportTimeOut() { report(KeyEventKind::disabledByTimeout); }
  /// Keyboard thread: tells the handler that the focus has gone to another window.
  void reportFocusMove() { report(KeyEventKind::focusMoved); }
  /// Any thread: no key waits any longer, until `open`.
  void close();
  void open();

 private:
  /// Touched on the main thread only. The handler may be replaced while it runs.
  struct Owner {
    std::shared_ptr<const EventTap::Handler> handler;
    KeyVerdict judge(const KeyEvent& event) const;
  };

  void report(KeyEventKind kind);

  MainQueue& queue_;
  std::chrono::milliseconds answerTime_;
  std::shared_ptr<Owner> owner_;
  std::mutex mutex_;
  std::shared_ptr<KeyQuestion> question_;
  bool closed_ = false;
};

}  // namespace tessarin::x11
