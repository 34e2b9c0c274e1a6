#include "platform/x11/ActiveWindow.h"

<<<<<<< HEAD
#include <cstring>
#include <string_view>

    namespace tessarin::x11 {
  namespace {

  xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_NONE);
  }

  /// A property of 32-bit numbers; null unless it has at least `count` of them.
  Owned<xcb_get_property_reply_t> numbers(xcb_connection_t* connection, xcb_window_t window,
                                          xcb_atom_t property, std::uint32_t count) {
    const auto cookie = xcb_get_property(connection, 0, window, property, XCB_ATOM_ANY, 0, count);
    Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
    return reply && reply->format == 32 && reply->value_len >= count ? std::move(reply) : nullptr;
  }

  }  // namespace

  ActiveWindow::ActiveWindow(const std::string& display)
      : connection_(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)) {
    if (xcb_connection_has_error(connection_.get()) != 0) return;
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
    activeWindow_ = atom(connection_.get(), "_NET_ACTIVE_WINDOW");
    frameExtents_ = atom(connection_.get(), "_GTK_FRAME_EXTENTS");
  }

  std::optional<Point> ActiveWindow::origin() const {
    const auto active = window();
    if (!active) return std::nullopt;
    const auto cookie = xcb_translate_coordinates(connection_.get(), *active, root_, 0, 0);
    const Owned<xcb_translate_coordinates_reply_t> reply(
        xcb_translate_coordinates_reply(connection_.get(), cookie, nullptr));
    if (!reply) return std::nullopt;
    const Point inside = shadow(*active);
    return Point{reply->dst_x + inside.x, reply->dst_y + inside.y};
  }

  std::optional<xcb_window_t> ActiveWindow::window() const {
    if (root_ == XCB_NONE) return std::nullopt;
    const auto reply = numbers(connection_.get(), root_, activeWindow_, 1);
    if (!reply) return std::nullopt;
    const xcb_window_t window = *static_cast<xcb_window_t*>(xcb_get_property_value(reply.get()));
    return window == XCB_NONE ? std::nullopt : std::optional(window);
  }

  Point ActiveWindow::shadow(xcb_window_t window) const {
    const auto reply = numbers(connection_.get(), window, frameExtents_, 4);
    if (!reply) return {};
    const auto* extents = static_cast<std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {static_cast<double>(extents[0]), static_cast<double>(extents[2])};
=======
#include <utility>

#include "platform/x11/Atoms.h"
#include "platform/x11/FocusedClient.h"
#include "platform/x11/Handles.h"

    namespace tessarin::x11 {
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
      const xcb_window_t window = isManaged() ? properties_.activeWindow() : focusedWindow();
      if (window == window_) return;
      const bool isStillNeeded = window_ == focus_ || window_ == XCB_WINDOW_NONE;
      if (!isStillNeeded) select(window_, XCB_EVENT_MASK_NO_EVENT);
      window_ = window;
      if (window_ != XCB_WINDOW_NONE) {
        select(window_, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE);
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
      select(focus_, XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_FOCUS_CHANGE);
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
          if (reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == manager_) refresh();
          break;
        default:
          break;
      }
    }

    void ActiveWindow::handleProperty(const xcb_property_notify_event_t& event) {
      if (event.window == root_) {
        if (event.atom == activeProperty_ || event.atom == managerProperty_) refresh();
      } else if (event.window == window_) {
        if (event.atom == XCB_ATOM_WM_CLASS || event.atom == applicationIdProperty_)
          changed_(Change::sameWindow);
      }
    }

    void ActiveWindow::handleFocus(const xcb_focus_in_event_t& event) {
      // A key that is being held by a grab takes the focus away for a moment; the window manager knows
      // better.
      const bool isGrab = event.mode == XCB_NOTIFY_MODE_GRAB || event.mode == XCB_NOTIFY_MODE_UNGRAB;
      if (!isGrab && !isManaged()) refresh();
    }

    void ActiveWindow::select(xcb_window_t window, std::uint32_t events) {
      xcb_change_window_attributes(connection_, window, XCB_CW_EVENT_MASK, &events);
>>>>>>> desktop
    }

    }  // namespace tessarin::x11
