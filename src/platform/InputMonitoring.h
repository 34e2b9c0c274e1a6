#pragma once

#include <string>

namespace tessarin {

/// Whether this session has a key tap that can be used. Main thread, asked afresh at every call.
class InputMonitoring {
 public:
  virtual ~InputMonitoring() = default;

  virtual bool isGranted() = 0;
  /// Explains to the user what is missing, if anything is.
  virtual void request() = 0;
};

}  // namespace tessarin
