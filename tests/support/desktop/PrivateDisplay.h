#pragma once

#include "support/desktop/ChildProcess.h"

namespace tessarin::testing {

/// An X server of the test's own (Xvfb on a free display), with a window manager if wanted. Both end with
/// this object. Free of any toolkit.
class PrivateDisplay {
 public:
  /// Answers once the server takes connections. `geometry` is width x height x depth; `arguments` go to the
  /// server too. Throws std::runtime_error when it does not come up.
  explicit PrivateDisplay(const std::string& geometry = "1280x1024x24",
                          const std::vector<std::string>& arguments = {});

  /// Starts openbox and answers once it manages the display.
  void startWindowManager();
  /// `arguments`: those of setxkbmap.
  void setLayout(const std::vector<std::string>& arguments) const;

  /// For xcb_connect and the DISPLAY variable, e.g. ":7".
  const std::string& name() const { return name_; }
  /// "DISPLAY=:7", for the environment of a child.
  std::string variable() const { return "DISPLAY=" + name_; }
  /// Runs a program on this display to its end and answers its exit status.
  int run(const std::vector<std::string>& command) const;

 private:
  ChildProcess server_;
  ChildProcess windowManager_;
  std::string name_;
};

}  // namespace tessarin::testing
