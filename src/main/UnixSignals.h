#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "base/FileDescriptor.h"

namespace tessarin {

/// Turns signals into ordinary callbacks on the main loop: SIGTERM, SIGINT and SIGHUP, which end the process,
/// and SIGTSTP (Ctrl-Z in the terminal), which stops it. SIGPIPE is ignored, and so are SIGTTIN and SIGTTOU,
/// which would stop a process that writes its log in the background. To be made before any thread is started,
/// so that the signals are blocked in all of them.
class UnixSignals {
 public:
  UnixSignals();

  /// Needs the application object. Stopping the process is left to `stop`.
  void listen(std::function<void()> end, std::function<void()> stop);

 private:
  FileDescriptor signals_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tessarin
