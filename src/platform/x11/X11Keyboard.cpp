#include "platform/x11/X11Keyboard.h"

#include <xcb/xinput.h>
#include <xcb/xtest.h>

#include <utility>

#include "base/Log.h"
#include "base/SessionKind.h"
#include "platform/x11/KeyWatch.h"
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

void logLoss(const KeyFilter::Loss& loss) {
  std::string line = loss.wasStandingStill
                         ? "This process stood still while keys were held, so the keyboard was freed"
                         : "The server closed the connection of the keyboard, which was made anew";
  if (loss.keptKeys > 0) line += "; " + std::to_string(loss.keptKeys) + " keys held back are lost";
  log("KeyFilter", line);
}

}  // namespace

bool canTapKeys(xcb_connection_t* connection) {
  return xcb_connection_has_error(connection) == 0 && !isWaylandSession() &&
         isPresent(connection, xcb_test_id) && isPresent(connection, xcb_xkb_id) && hasInput(connection);
}

X11Keyboard::X11Keyboard(MainQueue& queue, Options options)
    : queue_(queue), options_(std::move(options)), judge_(queue, options_.answerTime) {}

bool X11Keyboard::start() {
  if (isServing_) return true;
  stop();
  const auto keyboard = connect();
  if (!keyboard) return false;
  control_.begin();
  judge_.open();
  isServing_ = true;
  thread_ = std::thread([this, keyboard = *keyboard] { serve(keyboard); });
  return true;
}

void X11Keyboard::stop() {
  control_.stop();
  judge_.close();
  if (thread_.joinable()) thread_.join();
  isServing_ = false;
  connection_.reset();
}

void X11Keyboard::withoutKeyboard(const std::function<void()>& work) {
  const bool wasServing = isServing_;
  stop();
  work();
  if (wasServing && start()) judge_.reportTimeOut();
}

std::optional<SessionKeyboard> X11Keyboard::connect() {
  int screen = 0;
  connection_.reset(xcb_connect(options_.display.empty() ? nullptr : options_.display.c_str(), &screen));
  if (!canTapKeys(connection_.get())) return std::nullopt;
  return SessionKeyboard::find(connection_.get(), rootOf(connection_.get(), screen));
}

std::optional<KeyFilter::Loss> X11Keyboard::serveConnection(const SessionKeyboard& keyboard, KeyWatch& watch,
                                                            const KeySet& leftPressed) {
  KeyFilter filter(keyboard, control_, judge_, watch);
  filter.letGoOf(leftPressed);
  return filter.run();
}

void X11Keyboard::serve(SessionKeyboard keyboard) {
  KeyWatch watch({options_.watcher, options_.display, options_.watcherStarted}, keyboard);
  KeySet pressed;
  while (const auto loss = serveConnection(keyboard, watch, pressed)) {
    const auto next = connect();
    // The server has gone, and the program with it.
    if (!next) break;
    logLoss(*loss);
    keyboard = *next;
    watch.follow(keyboard);
    pressed = loss->pressed;
    judge_.reportTimeOut();
  }
  isServing_ = false;
}

}  // namespace tessarin::x11
