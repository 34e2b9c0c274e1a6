#pragma once

#include "platform/x11/SessionKeyboard.h"

namespace tessarin::x11 {

/// Takes the keyboard away from the focused window while more keys are kept than anybody types ahead. Every
/// key that the server holds singly costs the window two focus changes, which slow applications take
/// milliseconds over; hundreds of them would keep the keys that we type from being heard. One thread.
class WholeKeyboard {
 public:
  /// As many keys are held singly first: the keyboard is a good deal to take for a fast typist's sake.
  static constexpr int keysHeldSingly = 8;

  explicit WholeKeyboard(const SessionKeyboard& keyboard) : keyboard_(keyboard) {}

  /// One more key was kept that the server held.
  void noteKept();
  /// The focused window gets the keys again. Those that came to us before stand in the connection's queue.
  void giveBack();
  /// While it is, keys are not held: they come to us and nobody else, whatever the answer.
  bool isTaken() const { return isTaken_; }

 private:
  bool take();

  SessionKeyboard keyboard_;
  int kept_ = 0;  ///< since it was given back
  bool isTaken_ = false;
};

}  // namespace tessarin::x11
