#include "platform/x11/SessionKeyboard.h"

#include <xcb/xinput.h>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

std::optional<std::uint16_t> keyboardPairedWith(xcb_connection_t* connection, std::uint16_t pointer) {
  const Owned<xcb_input_xi_query_device_reply_t> reply(
      xcb_input_xi_query_device_reply(connection, xcb_input_xi_query_device(connection, pointer), nullptr));
  if (!reply || reply->num_infos == 0) return std::nullopt;
  return xcb_input_xi_query_device_infos_iterator(reply.get()).data->attachment;
}

}  // namespace

std::optional<SessionKeyboard> SessionKeyboard::find(xcb_connection_t* connection, xcb_window_t root) {
  const Owned<xcb_input_xi_get_client_pointer_reply_t> pointer(xcb_input_xi_get_client_pointer_reply(
      connection, xcb_input_xi_get_client_pointer(connection, XCB_NONE), nullptr));
  if (!pointer) return std::nullopt;
  const auto keyboard = keyboardPairedWith(connection, pointer->deviceid);
  if (!keyboard) return std::nullopt;
  return SessionKeyboard{connection, root, *keyboard};
}

void SessionKeyboard::replayHeldKey() const {
  xcb_input_xi_allow_events(connection, XCB_CURRENT_TIME, device, XCB_INPUT_EVENT_MODE_REPLAY_DEVICE, 0, 0);
}

// Not the answer "asynchronous": that would hand us, no longer held, the keys that wait behind this one,
// because the grab goes on until the key is released.
void SessionKeyboard::swallowHeldKey() const {
  xcb_input_xi_ungrab_device(connection, XCB_CURRENT_TIME, device);
}

}  // namespace tessarin::x11
