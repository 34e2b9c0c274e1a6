#pragma once

#include <chrono>
#include <string>

namespace tessarin::stopwatch {

/// Seconds of the clock that every process of the machine reads alike.
inline std::string now() {
  const auto since = std::chrono::steady_clock::now().time_since_epoch();
  return std::to_string(std::chrono::duration<double>(since).count());
}

/// One line for whoever reads the stopwatch.
void report(const std::string& line);

}  // namespace tessarin::stopwatch
