#include "platform/x11/PopupOutline.h"

#include "platform/x11/Handles.h"

namespace tessarin::x11 {

void PopupOutline::follow(xcb_window_t window) {
  window_ = window;
  isMapped_ = false;
  if (window_ != XCB_WINDOW_NONE) readState();
}

void PopupOutline::readState() {
  const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_, window_, XCB_CW_EVENT_MASK, &events);
  const Owned<xcb_get_geometry_reply_t> geometry(
      xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window_), nullptr));
  const Owned<xcb_get_window_attributes_reply_t> attributes(
      xcb_get_window_attributes_reply(connection_, xcb_get_window_attributes(connection_, window_), nullptr));
  if (!geometry || !attributes) return;
  frame_ = {geometry->x, geometry->y, geometry->width, geometry->height};
  isMapped_ = attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

void PopupOutline::handle(const xcb_generic_event_t& event) {
  switch (event.response_type & 0x7f) {
    case XCB_MAP_NOTIFY:
      if (reinterpret_cast<const xcb_map_notify_event_t&>(event).window == window_) isMapped_ = true;
      break;
    case XCB_UNMAP_NOTIFY:
      if (reinterpret_cast<const xcb_unmap_notify_event_t&>(event).window == window_) isMapped_ = false;
      break;
    case XCB_CONFIGURE_NOTIFY: {
      const auto& change = reinterpret_cast<const xcb_configure_notify_event_t&>(event);
      if (change.window == window_) frame_ = {change.x, change.y, change.width, change.height};
      break;
    }
    default:
      break;
  }
}

bool PopupOutline::contains(int x, int y) const {
  return isMapped_ && x >= frame_.x && x < frame_.x + frame_.width && y >= frame_.y &&
         y < frame_.y + frame_.height;
}

}  // namespace tessarin::x11
