#include "platform/qt/WindowActivation.h"

#include <QWidget>
#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/qt/QtConnection.h"

namespace tessarin::ui {
namespace {

/// Who asks: not an application for itself, but the user by way of another window.
constexpr std::uint32_t userAction = 2;

void askWindowManager(const QWidget& window, const char* what, std::array<std::uint32_t, 3> details) {
  const auto x = qtConnection();
  if (!x) return;
  xcb_client_message_event_t request{};
  request.response_type = XCB_CLIENT_MESSAGE;
  request.format = 32;
  request.window = static_cast<xcb_window_t>(window.winId());
  request.type = x->atom(what);
  std::copy(details.begin(), details.end(), request.data.data32);
  xcb_send_event(x->connection, 0, x->root,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&request));
  xcb_flush(x->connection);
}

}  // namespace

void requestActivation(const QWidget& window) {
  askWindowManager(window, "_NET_ACTIVE_WINDOW", {userAction, XCB_CURRENT_TIME, XCB_NONE});
}

void requestRaise(const QWidget& window) {
  askWindowManager(window, "_NET_RESTACK_WINDOW", {userAction, XCB_NONE, XCB_STACK_MODE_ABOVE});
}

}  // namespace tessarin::ui
