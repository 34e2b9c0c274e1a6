#include "platform/x11/ActiveWindow.h"

#include <utility>

#include "platform/x11/Atoms.h"
#include "platform/x11/FocusedClient.h"
#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

constexpr std::uint32_t watched =
    XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;

}  // namespace
ActiveWindow::ActiveWindow(xcb_connection_t* connection, Atoms& atoms, WindowProperties& properties,
                           xcb_window_t root, Changed changed)
    : connection_(connection),
      properties_(properties),
      root_(root),
      activeProperty_(atoms.atom("_NET_ACTIVE_WINDOW")),
      managerProperty_(atoms.atom("_NET_SUPPORTING_WM_CHECK")),
      applicationIdProperty_(atoms.atom("_GTK_APPLICATION_ID")),
      changed_(std::move(changed)) {
  select(root_, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE);
}

void ActiveWindow::refresh() {
  manager_ = properties_.managerWindow();
  if (isManaged()) select(manager_, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
  follow(isManaged() ? properties_.activeWindow() : focusedWindow());
}

void ActiveWindow::follow(xcb_window_t window) {
  if (window == window_) return;
  const bool isStillNeeded = window_ == focus_ || window_ == XCB_WINDOW_NONE;
  if (!isStillNeeded) select(window_, XCB_EVENT_MASK_NO_EVENT);
  window_ = window;
  if (window_ != XCB_WINDOW_NONE) {
    select(window_, watched);
  }
  changed_(Change::otherWindow);
}

xcb_window_t ActiveWindow::focusedWindow() {
  const Owned<xcb_get_input_focus_reply_t> focus(
      xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  if (!focus || focus->focus == XCB_INPUT_FOCUS_NONE) return XCB_WINDOW_NONE;
  focus_ = focus->focus;
  if (focus_ == XCB_INPUT_FOCUS_POINTER_ROOT || focus_ == root_) {
    const xcb_window_t pointed = topLevelUnderPointer(connection_, root_);
    return pointed == XCB_WINDOW_NONE ? pointed : properties_.identifiedWindow(pointed);
  }
  select(focus_, watched);
  return properties_.identifiedWindow(focus_);
}

void ActiveWindow::handle(const xcb_generic_event_t& event) {
  switch (event.response_type & 0x7f) {
    case XCB_PROPERTY_NOTIFY:
      handleProperty(reinterpret_cast<const xcb_property_notify_event_t&>(event));
      break;
    case XCB_FOCUS_IN:
    case XCB_FOCUS_OUT:
      handleFocus(reinterpret_cast<const xcb_focus_in_event_t&>(event));
      break;
    case XCB_DESTROY_NOTIFY:
      handleDestroyed(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
      break;
    default:
      break;
  }
}

void ActiveWindow::handleDestroyed(xcb_window_t window) {
  if (window == manager_) {
    refresh();
  } else if (window == window_ && isManaged()) {
    // Not every window manager takes back the name of the last window.
    follow(XCB_WINDOW_NONE);
  }
}

void ActiveWindow::handleProperty(const xcb_property_notify_event_t& event) {
  if (event.window == root_) {
    if (event.atom == activeProperty_ || event.atom == managerProperty_) refresh();
  } else if (event.window == window_) {
    if (event.atom == XCB_ATOM_WM_CLASS || event.atom == applicationIdProperty_) changed_(Change::sameWindow);
  }
}

void ActiveWindow::handleFocus(const xcb_focus_in_event_t& event) {
  // A key that is being held by a grab takes the focus away for a moment; the window manager knows better.
  const bool isGrab = event.mode == XCB_NOTIFY_MODE_GRAB || event.mode == XCB_NOTIFY_MODE_UNGRAB;
  if (!isGrab && !isManaged()) refresh();
}

void ActiveWindow::select(xcb_window_t window, std::uint32_t events) {
  xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &events);
}

}  // namespace tessarin::x11
