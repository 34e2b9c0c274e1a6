#include "support/desktop/PrivateDisplay.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <chrono>
#include <memory>
#include <stdexcept>

#include "support/Eventually.h"
#include "support/desktop/XClient.h"

namespace tessarin::testing {
namespace {

using Clock = std::chrono::steady_clock;
constexpr auto startUpTime = std::chrono::seconds(30);

std::string readLine(int fd) {
  std::string line;
  const auto deadline = Clock::now() + startUpTime;
  while (Clock::now() < deadline) {
    pollfd waiting{fd, POLLIN, 0};
    if (poll(&waiting, 1, 1000) <= 0) continue;
    char c = 0;
    if (read(fd, &c, 1) != 1) break;
    if (c == '\n') return line;
    line += c;
  }
  throw std::runtime_error("no X server came up");
}

}  // namespace

PrivateDisplay::PrivateDisplay(const std::string& geometry, const std::vector<std::string>& arguments) {
  int ends[2];
  if (pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  std::vector<std::string> command{"Xvfb",      "-displayfd", std::to_string(ends[1]),
                                   "-screen",   "0",          geometry,
                                   "-nolisten", "tcp",        "-noreset"};
  command.insert(command.end(), arguments.begin(), arguments.end());
  server_ = ChildProcess(command, {}, ends[1]);
  close(ends[1]);
  const std::unique_ptr<int, void (*)(int*)> closing(&ends[0], [](int* fd) { close(*fd); });
  name_ = ":" + readLine(ends[0]);
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

int PrivateDisplay::run(const std::vector<std::string>& command) const {
  return testing::run(command, {variable()});
}

}  // namespace tessarin::testing
