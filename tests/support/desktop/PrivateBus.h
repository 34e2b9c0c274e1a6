#pragma once

#include "support/desktop/ChildProcess.h"

namespace tessarin::testing {

/// A session bus of the test's own.
class PrivateBus {
 public:
  const std::string& address() const { return address_; }
  void stop() { daemon_.stop(); }

 private:
  std::string address_;
  ChildProcess daemon_{{"dbus-daemon", "--session", "--nofork", "--print-address=3"}, {}, &address_};
};

}  // namespace tessarin::testing
