#pragma once

#include <xcb/xtest.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "base/Geometry.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/Handles.h"

namespace tessarin::testing {

struct WindowOptions {
  bool isOverrideRedirect = false;
  bool skipsTaskBar = false;
};

/// A request and its reply in one.
template <auto Request, auto Reply, class... Arguments>
inline auto ask(const x11::Connection& connection, Arguments... arguments) {
  auto* reply = Reply(connection.get(), Request(connection.get(), arguments...), nullptr);
  return x11::Owned<std::remove_pointer_t<decltype(reply)>>(reply);
}

inline auto attributesOf(const x11::Connection& connection, xcb_window_t window) {
  return ask<xcb_get_window_attributes, xcb_get_window_attributes_reply>(connection, window);
}

inline std::string textProperty(const x11::Connection& connection, xcb_window_t window, xcb_atom_t property) {
  constexpr std::uint32_t enoughWords = 64;
  const auto reply = ask<xcb_get_property, xcb_get_property_reply>(
      connection, std::uint8_t{0}, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, enoughWords);
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

/// Another program on the display: shows windows, looks at those of others, moves the pointer and presses its
/// buttons. All in native pixels of the root window; every operation has taken effect in the server when it
/// returns.
class XClient {
 public:
  explicit XClient(const std::string& display)
      : connection_(xcb_connect(display.c_str(), nullptr)), atoms_(connection_.get()) {
    if (xcb_connection_has_error(connection_.get()) != 0) throw std::runtime_error("no display " + display);
    root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
  }

  /// A mapped window of our own.
  xcb_window_t openWindow(const Rect& frame, const std::string& windowClass = "client",
                          const WindowOptions& options = {}) {
    const xcb_window_t window = xcb_generate_id(connection_.get());
    const std::uint32_t overrideRedirect = options.isOverrideRedirect ? 1 : 0;
    xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, root_,
                      static_cast<std::int16_t>(frame.x), static_cast<std::int16_t>(frame.y),
                      static_cast<std::uint16_t>(frame.width), static_cast<std::uint16_t>(frame.height), 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
                      &overrideRedirect);
    rename(window, windowClass);
    const xcb_atom_t skip = atoms_.atom("_NET_WM_STATE_SKIP_TASKBAR");
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, atoms_.atom("_NET_WM_STATE"),
                        XCB_ATOM_ATOM, 32, options.skipsTaskBar ? 1 : 0, &skip);
    xcb_map_window(connection_.get(), window);
    sync();
    return window;
  }
  void rename(xcb_window_t window, const std::string& windowClass) {
    set(window, XCB_ATOM_WM_CLASS, windowClass + '\0' + windowClass + '\0');
  }
  void destroy(xcb_window_t window) {
    xcb_destroy_window(connection_.get(), window);
    sync();
  }
  void focus(xcb_window_t window) {
    xcb_set_input_focus(connection_.get(), XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    sync();
  }
  /// Asks the window manager for it, as a task bar does.
  void activate(xcb_window_t window) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atoms_.atom("_NET_ACTIVE_WINDOW");
    message.data.data32[0] = 2;
    // A window manager that has only just come forgets requests to map a window.
    xcb_map_window(connection_.get(), window);
    xcb_send_event(connection_.get(), 0, root_,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    sync();
  }

  xcb_window_t focusedWindow() const {
    const auto reply = ask<xcb_get_input_focus, xcb_get_input_focus_reply>(connection_);
    return reply ? reply->focus : static_cast<xcb_window_t>(XCB_NONE);
  }
  xcb_window_t activeWindow() {
    const auto reply = ask<xcb_get_property, xcb_get_property_reply>(
        connection_, std::uint8_t{0}, root_, atoms_.atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1);
    if (!reply || reply->value_len != 1) return XCB_NONE;
    return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
  }
  /// The mapped window whose class contains "tessarin".
  std::optional<xcb_window_t> popup() const {
    const auto tree = ask<xcb_query_tree, xcb_query_tree_reply>(connection_, root_);
    if (!tree) return std::nullopt;
    const xcb_window_t* first = xcb_query_tree_children(tree.get());
    const xcb_window_t* last = first + xcb_query_tree_children_length(tree.get());
    const auto* found = std::find_if(first, last, [this](xcb_window_t window) {
      const auto attributes = attributesOf(connection_, window);
      return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
             textProperty(connection_, window, XCB_ATOM_WM_CLASS).find("tessarin") != std::string::npos;
    });
    return found != last ? std::optional(*found) : std::nullopt;
  }
  Rect frameOf(xcb_window_t window) const {
    const auto reply = ask<xcb_get_geometry, xcb_get_geometry_reply>(connection_, window);
    if (!reply) return {};
    return {static_cast<double>(reply->x), static_cast<double>(reply->y), static_cast<double>(reply->width),
            static_cast<double>(reply->height)};
  }

  void movePointer(int x, int y) {
    xcb_test_fake_input(connection_.get(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, root_,
                        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
    sync();
  }
  void press(std::uint8_t button) {
    for (const std::uint8_t type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
      xcb_test_fake_input(connection_.get(), type, button, XCB_CURRENT_TIME, root_, 0, 0, 0);
    sync();
  }
  /// Hides the window with the press, before anybody else can ask the server anything.
  void pressAndHide(std::uint8_t button, xcb_window_t window) {
    xcb_grab_server(connection_.get());
    press(button);
    xcb_unmap_window(connection_.get(), window);
    xcb_ungrab_server(connection_.get());
    sync();
  }
  void click(int x, int y) {
    movePointer(x, y);
    press(XCB_BUTTON_INDEX_1);
  }
  /// Says that windows are composed here, as long as this client lives.
  void becomeCompositor() { own("_NET_WM_CM_S0"); }
  /// Likewise, that there is an old-style tray; it leaves the icons where they are.
  void becomeTray() { own("_NET_SYSTEM_TRAY_S0"); }
  void setRootNumbers(const std::string& property, const std::vector<std::uint32_t>& numbers) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, root_, atoms_.atom(property),
                        XCB_ATOM_CARDINAL, 32, static_cast<std::uint32_t>(numbers.size()), numbers.data());
    sync();
  }

 private:
  void own(const std::string& selection) {
    const xcb_window_t window = openWindow({0, 0, 1, 1}, "owner", {.isOverrideRedirect = true});
    xcb_set_selection_owner(connection_.get(), window, atoms_.atom(selection), XCB_CURRENT_TIME);
    sync();
  }
  void set(xcb_window_t window, xcb_atom_t property, const std::string& text) {
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window, property, XCB_ATOM_STRING, 8,
                        static_cast<std::uint32_t>(text.size()), text.data());
    sync();
  }
  void sync() const { focusedWindow(); }

  x11::Connection connection_;
  x11::Atoms atoms_;
  xcb_window_t root_ = XCB_NONE;
};

}  // namespace tessarin::testing
