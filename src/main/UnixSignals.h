#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

#include "base/FileDescriptor.h"

namespace tessarin {

/// Turns SIGTERM, SIGINT and SIGHUP into an ordinary callback on the main loop. To be made before any thread
/// is started, so that the signals are blocked in all of them.
class UnixSignals {
 public:
  UnixSignals();

  /// Needs the application object.
  void onTermination(std::function<void()> callback);

 private:
  FileDescriptor signals_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace tessarin
