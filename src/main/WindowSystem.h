#pragma once

#include <functional>

namespace tessarin {

/// Whether a window system is there for the program's windows. Qt ends the process where none is.
bool canOpenWindows();

/// While it lives, a window system that goes away, upon which Qt ends the process, ends it like this: the
/// work is done, and nothing else, as everything that talks to the window system may hang or say that it is
/// gone; the status is 1. One at a time, main thread.
class LostWindowSystem {
 public:
  explicit LostWindowSystem(std::function<void()> work);
  ~LostWindowSystem();
  LostWindowSystem(const LostWindowSystem&) = delete;
  LostWindowSystem& operator=(const LostWindowSystem&) = delete;
};

/// Lets Qt write its messages to our log, which never waits for whoever reads it.
void logMessagesOfQt();

}  // namespace tessarin
