#pragma once

#include <string>
#include <vector>

#include "base/Log.h"

namespace tessarin::testing {

/// Collects the log lines written while it lives.
class LogRecorder {
 public:
  LogRecorder() : capture_([this](const std::string& line) { lines.push_back(line); }) {}
  std::vector<std::string> lines;

 private:
  LogCapture capture_;
};

}  // namespace tessarin::testing
