#pragma once

#include <sys/types.h>

#include <string>
#include <utility>
#include <vector>

namespace tessarin::testing {

/// A program started for a test; ended, by its process id, when this object goes. It also ends when the test
/// program dies.
class ChildProcess {
 public:
  ChildProcess() = default;
  /// `command`: the program, found on the PATH, and its arguments. `environment`: NAME=value entries that
  /// replace or join our own. `announcement`: gets the first line that the program writes to its descriptor
  /// 3, which is waited for; empty when none comes. Throws std::runtime_error when no process can be made.
  explicit ChildProcess(const std::vector<std::string>& command,
                        const std::vector<std::string>& environment = {},
                        std::string* announcement = nullptr);
  ChildProcess(ChildProcess&& other) noexcept : pid_(std::exchange(other.pid_, -1)) {}
  ChildProcess& operator=(ChildProcess&& other) noexcept;
  ~ChildProcess() { stop(); }

  bool isRunning();
  void stop();

 private:
  pid_t pid_ = -1;
};

/// Runs a program to its end and answers its exit status; -1 when it did not end by itself.
int run(const std::vector<std::string>& command, const std::vector<std::string>& environment = {});

}  // namespace tessarin::testing
