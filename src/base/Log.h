#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tessarin {

/// Writes "[component] message" as one line to standard output, at once and without ever waiting: a line that
/// nobody takes (a full pipe, a terminal that was halted, a full disk) is dropped, and the next one that is
/// taken is preceded by how many were. A message never contains what the user typed, what stands on the
/// clipboard or the text of a document. Any thread.
void log(std::string_view component, std::string_view message);

/// Sends every line (without its line feed) to `sink` instead of standard output while it lives; for tests.
class LogCapture {
 public:
  explicit LogCapture(std::function<void(const std::string& line)> sink);
  ~LogCapture();
  LogCapture(const LogCapture&) = delete;
  LogCapture& operator=(const LogCapture&) = delete;

 private:
  std::function<void(const std::string&)> previous_;
};

}  // namespace tessarin
