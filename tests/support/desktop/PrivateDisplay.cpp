#include "support/desktop/PrivateDisplay.h"

#include <stdexcept>

#include "support/Eventually.h"
#include "support/desktop/XClient.h"

namespace tessarin::testing {

PrivateDisplay::PrivateDisplay(const std::string& geometry, const std::vector<std::string>& arguments) {
  std::vector<std::string> command{"Xvfb",   "-displayfd", "3",   "-screen", "0",
                                   geometry, "-nolisten",  "tcp", "-noreset"};
  command.insert(command.end(), arguments.begin(), arguments.end());
  std::string number;
  server_ = ChildProcess(command, {}, &number);
  if (number.empty()) throw std::runtime_error("no X server came up");
  name_ = ":" + number;
}

void PrivateDisplay::startWindowManager() {
  windowManager_ = ChildProcess({"openbox", "--sm-disable"}, {variable()});
  XClient client(name_);
  const xcb_window_t window = client.openWindow({0, 0, 10, 10});
  // While it starts it announces itself, forgets windows that are mapped, and takes the focus. All that is
  // over when a window has got the focus from it, and lost it.
  const bool isManaging =
      eventually([&] { return client.activeWindow() == window; }, [&] { client.activate(window); });
  client.destroy(window);
  const bool isSettled = eventually([&] {
    const xcb_window_t focused = client.focusedWindow();
    return focused > XCB_INPUT_FOCUS_POINTER_ROOT && focused != window;
  });
  if (!isManaging || !isSettled) throw std::runtime_error("no window manager came up");
}

void PrivateDisplay::setLayout(const std::vector<std::string>& arguments) const {
  std::vector<std::string> command{"setxkbmap"};
  command.insert(command.end(), arguments.begin(), arguments.end());
  if (run(command) != 0) throw std::runtime_error("no such layout");
}

int PrivateDisplay::run(const std::vector<std::string>& command) const {
  return testing::run(command, {variable()});
}

}  // namespace tessarin::testing
