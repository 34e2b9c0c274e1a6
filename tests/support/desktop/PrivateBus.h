#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <stdexcept>
#include <string>

#include "support/desktop/ChildProcess.h"

namespace tessarin::testing {

/// A session bus of the test's own.
class PrivateBus {
 public:
  PrivateBus() {
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
    daemon_ = ChildProcess(
        {"dbus-daemon", "--session", "--nofork", "--print-address=" + std::to_string(ends[1])}, {}, ends[1]);
    close(ends[1]);
    for (char c = 0; read(ends[0], &c, 1) == 1 && c != '\n';) address_ += c;
    close(ends[0]);
  }
  const std::string& address() const { return address_; }
  void stop() { daemon_.stop(); }

 private:
  ChildProcess daemon_;
  std::string address_;
};

}  // namespace tessarin::testing
