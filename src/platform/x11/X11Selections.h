#pragma once

#include <memory>
#include <string>

#include "platform/Pasteboard.h"

namespace tessarin {
class MainQueue;
}

namespace tessarin::x11 {

/// The two selections that programs paste from, served by one connection with a thread of its own.
class X11Selections {
 public:
  /// `display` as in DISPLAY; empty takes DISPLAY itself. Null when the server does not answer or cannot tell
  /// of selections that change hands. `queue` has to outlive the result.
  static std::unique_ptr<X11Selections> connect(MainQueue& queue, const std::string& display = {});
  ~X11Selections();
  X11Selections(const X11Selections&) = delete;
  X11Selections& operator=(const X11Selections&) = delete;

  /// What Copy and Paste use.
  Pasteboard& general();
  /// What is selected, which terminals paste on Shift-Insert.
  Pasteboard& primary();

  /// Before the program ends: hands what we own to the clipboard manager, if there is one, unless it is
  /// marked as a secret, waiting for one second at most. What nobody took over is kept by `keeper`, a
  /// program that knows SelectionKeeper's option; empty for none. Then ends the thread.
  void shutdown(const std::string& keeper = {});

 private:
  class Impl;
  explicit X11Selections(std::unique_ptr<Impl> impl);
  std::unique_ptr<Impl> impl_;
};

}  // namespace tessarin::x11
