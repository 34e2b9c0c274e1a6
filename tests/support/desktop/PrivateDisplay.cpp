#include "support/desktop/PrivateDisplay.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <thread>

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

struct Disconnect {
  void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

bool isManaged(xcb_connection_t* connection, xcb_window_t root) {
  constexpr char name[] = "_NET_SUPPORTING_WM_CHECK";
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> atom(
      xcb_intern_atom_reply(connection, xcb_intern_atom(connection, 0, std::strlen(name), name), nullptr),
      &std::free);
  if (!atom) return false;
  const std::unique_ptr<xcb_get_property_reply_t, decltype(&std::free)> property(
      xcb_get_property_reply(
          connection, xcb_get_property(connection, 0, root, atom->atom, XCB_ATOM_WINDOW, 0, 1), nullptr),
      &std::free);
  return property && property->value_len == 1;
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
  const std::unique_ptr<xcb_connection_t, Disconnect> connection(xcb_connect(name_.c_str(), nullptr));
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection.get())).data->root;
  const auto deadline = Clock::now() + startUpTime;
  while (!isManaged(connection.get(), root)) {
    if (Clock::now() > deadline || !windowManager_.isRunning()) {
      throw std::runtime_error("no window manager came up");
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
}

int PrivateDisplay::run(const std::vector<std::string>& command) const {
  return testing::run(command, {variable()});
}

}  // namespace tessarin::testing
