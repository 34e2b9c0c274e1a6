#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "base/Log.h"

namespace tessarin::testing {

/// Collects the log lines written while it lives, by whatever thread.
class LogRecorder {
 public:
  std::vector<std::string> lines() const {
    const std::lock_guard lock(mutex_);
    return lines_;
  }
  void clear() {
    const std::lock_guard lock(mutex_);
    lines_.clear();
  }

 private:
  mutable std::mutex mutex_;
  std::vector<std::string> lines_;
  LogCapture capture_{[this](const std::string& line) {
    const std::lock_guard lock(mutex_);
    lines_.push_back(line);
  }};
};

}  // namespace tessarin::testing
