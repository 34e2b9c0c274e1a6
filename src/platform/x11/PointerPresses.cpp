#include "platform/x11/PointerPresses.h"

#include <xcb/xinput.h>

#include "base/Log.h"
#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

bool hasRawEvents(xcb_connection_t* connection) {
  const auto* extension = xcb_get_extension_data(connection, &xcb_input_id);
  if (extension == nullptr || extension->present == 0) return false;
  // Since 2.1 raw events come to everybody, also while a program has grabbed the pointer.
  const Owned<xcb_input_xi_query_version_reply_t> version(
      xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
  return version &&
         (version->major_version > 2 || (version->major_version == 2 && version->minor_version >= 1));
}

}  // namespace

PointerPresses::PointerPresses(xcb_connection_t* connection, xcb_window_t root) {
  if (!hasRawEvents(connection)) {
    log("Workspace", "this X server does not tell of pointer buttons");
    return;
  }
  opcode_ = xcb_get_extension_data(connection, &xcb_input_id)->major_opcode;
  const struct {
    xcb_input_event_mask_t head{XCB_INPUT_DEVICE_ALL_MASTER, 1};
    std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS;
  } selection;
  xcb_input_xi_select_events(connection, root, 1, &selection.head);
}

bool PointerPresses::isPress(const xcb_generic_event_t& event) const {
  if ((event.response_type & 0x7f) != XCB_GE_GENERIC || opcode_ == 0) return false;
  const auto& raw = reinterpret_cast<const xcb_input_raw_button_press_event_t&>(event);
  constexpr std::uint32_t firstWheelButton = 4;
  constexpr std::uint32_t lastWheelButton = 7;
  const bool isWheel = raw.detail >= firstWheelButton && raw.detail <= lastWheelButton;
  return raw.extension == opcode_ && raw.event_type == XCB_INPUT_RAW_BUTTON_PRESS && !isWheel;
}

}  // namespace tessarin::x11
