#include "platform/x11/X11Keyboard.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <utility>

#include "base/SessionKind.h"
#include "platform/x11/KeyFilter.h"
#include "platform/x11/SessionKeyboard.h"
#include "platform/x11/XkbProtocol.h"

namespace tessarin::x11 {
namespace {

bool isPresent(xcb_connection_t* connection, xcb_extension_t& extension) {
  const auto* data = xcb_get_extension_data(connection, &extension);
  return data != nullptr && data->present != 0;
}

bool hasInput(xcb_connection_t* connection) {
  if (!isPresent(connection, xcb_input_id)) return false;
  const Owned<xcb_input_xi_query_version_reply_t> version(
      xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
  return version && std::pair<int, int>(version->major_version, version->minor_version) >= std::pair(2, 2);
}

xcb_window_t rootOf(xcb_connection_t* connection, int screen) {
  auto roots = xcb_setup_roots_iterator(xcb_get_setup(connection));
  for (; screen > 0 && roots.rem > 1; --screen) xcb_screen_next(&roots);
  return roots.data->root;
}

}  // namespace

bool canTapKeys(xcb_connection_t* connection) {
  return xcb_connection_has_error(connection) == 0 && !isWaylandSession() &&
         isPresent(connection, xcb_test_id) && isPresent(connection, xcb_xkb_id) && hasInput(connection);
}

X11Keyboard::X11Keyboard(MainQueue& queue, std::string display, std::chrono::milliseconds answerTime)
    : queue_(queue), display_(std::move(display)), judge_(queue, answerTime) {}

X11Keyboard::~X11Keyboard() {
  control_.stop();
  judge_.close();
  if (thread_.joinable()) thread_.join();
}

bool X11Keyboard::start() {
  if (thread_.joinable()) return xcb_connection_has_error(connection_.get()) == 0;
  int screen = 0;
  connection_.reset(xcb_connect(display_.empty() ? nullptr : display_.c_str(), &screen));
  if (!canTapKeys(connection_.get())) return false;
  const auto keyboard = SessionKeyboard::find(connection_.get(), rootOf(connection_.get(), screen));
  if (!keyboard) return false;
  thread_ = std::thread([this, keyboard = *keyboard] { KeyFilter(keyboard, control_, judge_).run(); });
  return true;
}

}  // namespace tessarin::x11
