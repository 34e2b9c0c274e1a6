#include "platform/x11/FocusedClient.h"

#include "platform/x11/Handles.h"

namespace tessarin::x11 {
xcb_window_t topLevelUnderPointer(xcb_connection_t* connection, xcb_window_t root) {
  const Owned<xcb_query_pointer_reply_t> pointer(
      xcb_query_pointer_reply(connection, xcb_query_pointer(connection, root), nullptr));
  return pointer ? pointer->child : xcb_window_t{XCB_WINDOW_NONE};
}

std::uint32_t clientOf(xcb_connection_t* connection, std::uint32_t resource) {
  return resource & ~xcb_get_setup(connection)->resource_id_mask;
}

std::uint32_t focusedClient(xcb_connection_t* connection, xcb_window_t root) {
  const Owned<xcb_get_input_focus_reply_t> focus(
      xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
  if (!focus) return 0;
  const bool followsPointer = focus->focus == XCB_INPUT_FOCUS_POINTER_ROOT || focus->focus == root;
  return clientOf(connection, followsPointer ? topLevelUnderPointer(connection, root) : focus->focus);
}

}  // namespace tessarin::x11
