#pragma once

#include "support/TemporaryFolder.h"
#include "support/desktop/ChildProcess.h"

namespace tessarin::testing {

/// A desktop session of the test's own: a session bus that starts no services, an accessibility bus, and home
/// folders in a temporary folder. All of it ends with this object.
class PrivateSession {
 public:
  /// Answers once both buses are there. `display`: "DISPLAY=:7" of a display to put programs on, if any.
  /// Throws std::runtime_error when a bus does not come up.
  explicit PrivateSession(const std::string& display = {});

  /// Starts a program in this session.
  ChildProcess start(const std::vector<std::string>& command) const;
  /// Runs a program in this session to its end and answers its exit status.
  int run(const std::vector<std::string>& command) const;

  void stopAccessibility();
  /// Answers once the accessibility bus is there.
  void startAccessibility();
  const std::string& busAddress() const { return busAddress_; }
  std::string accessibilityBusAddress() const;
  const TemporaryFolder& folder() const { return folder_; }

 private:
  std::vector<std::string> environment() const;
  void startBus();

  TemporaryFolder folder_;
  std::string display_;
  std::string busAddress_;
  ChildProcess bus_;
  ChildProcess accessibility_;
};

}  // namespace tessarin::testing
