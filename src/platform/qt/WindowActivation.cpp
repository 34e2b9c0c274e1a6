#include "platform/qt/WindowActivation.h"

#include <QWidget>
#include <cstdint>

#include "platform/qt/QtConnection.h"

namespace tessarin::ui {
namespace {

/// Who asks: not an application for itself, but the user by way of another window.
constexpr std::uint32_t userAction = 2;

}  // namespace

void requestActivation(const QWidget& window) {
  const auto x = qtConnection();
  if (!x) return;
  xcb_client_message_event_t request{};
  request.response_type = XCB_CLIENT_MESSAGE;
  request.format = 32;
  request.window = static_cast<xcb_window_t>(window.winId());
  request.type = x->atom("_NET_ACTIVE_WINDOW");
  request.data.data32[0] = userAction;
  request.data.data32[1] = XCB_CURRENT_TIME;
  xcb_send_event(x->connection, 0, x->root,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&request));
  xcb_flush(x->connection);
}

}  // namespace tessarin::ui
