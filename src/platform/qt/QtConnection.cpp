#include "platform/qt/QtConnection.h"

#include <QGuiApplication>
#include <cstdint>
#include <cstdlib>
#include <memory>

namespace tessarin::ui {
namespace {

struct FirstScreen {
  int number = 0;
  xcb_window_t root = XCB_NONE;
};

/// The screen named in DISPLAY (":0.1" is the second one), where Qt opens its windows.
FirstScreen defaultScreen(xcb_connection_t* connection) {
  char* host = nullptr;
  int display = 0;
  int number = 0;
  if (xcb_parse_display(nullptr, &host, &display, &number) == 0) number = 0;
  std::free(host);
  auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
  if (number >= screens.rem) number = 0;
  for (int i = 0; i < number; ++i) xcb_screen_next(&screens);
  return {number, screens.data->root};
}

}  // namespace

xcb_atom_t QtConnection::atom(const std::string& name) const {
  const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
      xcb_intern_atom_reply(
          connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.c_str()),
          nullptr),
      &std::free);
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

std::optional<QtConnection> qtConnection() {
  const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (x11 == nullptr || x11->connection() == nullptr) return std::nullopt;
  const FirstScreen screen = defaultScreen(x11->connection());
  return QtConnection{x11->connection(), screen.number, screen.root};
}

}  // namespace tessarin::ui
