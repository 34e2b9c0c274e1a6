#include "platform/qt/XClient.h"

#include <xcb/shape.h>
#include <xcb/xtest.h>

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "support/Eventually.h"

namespace tessarin::testing {
namespace {

struct Free {
  void operator()(void* pointer) const { std::free(pointer); }
};
template <class T>
std::unique_ptr<T, Free> owned(T* pointer) {
  return std::unique_ptr<T, Free>(pointer);
}

bool isViewable(xcb_connection_t* connection, xcb_window_t window) {
  const auto attributes = owned(
      xcb_get_window_attributes_reply(connection, xcb_get_window_attributes(connection, window), nullptr));
  return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

std::string textProperty(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t property) {
  constexpr std::uint32_t enoughWords = 64;
  const auto reply = owned(xcb_get_property_reply(
      connection,
      xcb_get_property(connection, 0, window, property, XCB_GET_PROPERTY_TYPE_ANY, 0, enoughWords), nullptr));
  if (!reply) return {};
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

bool isOurs(xcb_connection_t* connection, xcb_window_t window) {
  if (!isViewable(connection, window)) return false;
  return textProperty(connection, window, XCB_ATOM_WM_CLASS).find("tessarin") != std::string::npos;
}

}  // namespace

XClient::XClient(const std::string& display) : connection_(xcb_connect(display.c_str(), nullptr)) {
  if (xcb_connection_has_error(connection_.get()) != 0) throw std::runtime_error("no display " + display);
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
}

xcb_window_t XClient::openWindow(const Rect& frame, bool hasFocus) {
  const xcb_window_t window = xcb_generate_id(connection_.get());
  xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, root_,
                    static_cast<std::int16_t>(frame.x), static_cast<std::int16_t>(frame.y),
                    static_cast<std::uint16_t>(frame.width), static_cast<std::uint16_t>(frame.height), 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_map_window(connection_.get(), window);
  sync();
  if (hasFocus && !eventually([&] { return activeWindow() == window; }, [&] { askForFocus(window); }))
    throw std::runtime_error("our window did not get the focus");
  return window;
}

void XClient::askForFocus(xcb_window_t window) {
  // A window manager that has only just come forgets requests to map a window.
  if (!isViewable(connection_.get(), window)) {
    xcb_map_window(connection_.get(), window);
    return;
  }
  xcb_client_message_event_t message{};
  message.response_type = XCB_CLIENT_MESSAGE;
  message.format = 32;
  message.window = window;
  message.type = atom("_NET_ACTIVE_WINDOW");
  message.data.data32[0] = 2;  // as a task bar asks
  xcb_send_event(connection_.get(), 0, root_,
                 XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                 reinterpret_cast<const char*>(&message));
  sync();
}

xcb_window_t XClient::focusedWindow() const {
  const auto reply =
      owned(xcb_get_input_focus_reply(connection_.get(), xcb_get_input_focus(connection_.get()), nullptr));
  return reply ? reply->focus : static_cast<xcb_window_t>(XCB_NONE);
}

xcb_window_t XClient::activeWindow() const {
  const auto reply = owned(xcb_get_property_reply(
      connection_.get(),
      xcb_get_property(connection_.get(), 0, root_, atom("_NET_ACTIVE_WINDOW"), XCB_ATOM_WINDOW, 0, 1),
      nullptr));
  if (!reply || reply->value_len != 1) return XCB_NONE;
  return *static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
}

std::optional<xcb_window_t> XClient::popup() const {
  const auto tree =
      owned(xcb_query_tree_reply(connection_.get(), xcb_query_tree(connection_.get(), root_), nullptr));
  if (!tree) return std::nullopt;
  const xcb_window_t* first = xcb_query_tree_children(tree.get());
  const xcb_window_t* last = first + xcb_query_tree_children_length(tree.get());
  const auto* found =
      std::find_if(first, last, [this](xcb_window_t window) { return isOurs(connection_.get(), window); });
  return found != last ? std::optional(*found) : std::nullopt;
}

Rect XClient::frameOf(xcb_window_t window) const {
  const auto reply =
      owned(xcb_get_geometry_reply(connection_.get(), xcb_get_geometry(connection_.get(), window), nullptr));
  if (!reply) return {};
  return {static_cast<double>(reply->x), static_cast<double>(reply->y), static_cast<double>(reply->width),
          static_cast<double>(reply->height)};
}

std::string XClient::titleOf(xcb_window_t window) const {
  return textProperty(connection_.get(), window, XCB_ATOM_WM_NAME);
}

bool XClient::isOverrideRedirect(xcb_window_t window) const {
  const auto reply = owned(xcb_get_window_attributes_reply(
      connection_.get(), xcb_get_window_attributes(connection_.get(), window), nullptr));
  return reply && reply->override_redirect != 0;
}

bool XClient::isInShape(xcb_window_t window, int x, int y) const {
  const auto reply = owned(xcb_shape_get_rectangles_reply(
      connection_.get(), xcb_shape_get_rectangles(connection_.get(), window, XCB_SHAPE_SK_BOUNDING),
      nullptr));
  if (!reply) return false;
  const xcb_rectangle_t* first = xcb_shape_get_rectangles_rectangles(reply.get());
  return std::any_of(first, first + xcb_shape_get_rectangles_rectangles_length(reply.get()),
                     [x, y](const xcb_rectangle_t& r) {
                       return x >= r.x && x < r.x + r.width && y >= r.y && y < r.y + r.height;
                     });
}

void XClient::movePointer(int x, int y) {
  xcb_test_fake_input(connection_.get(), XCB_MOTION_NOTIFY, 0, XCB_CURRENT_TIME, root_,
                      static_cast<std::int16_t>(x), static_cast<std::int16_t>(y), 0);
  sync();
}

void XClient::click(int x, int y) {
  movePointer(x, y);
  press(XCB_BUTTON_INDEX_1);
}

void XClient::scrollDown(int x, int y) {
  movePointer(x, y);
  press(XCB_BUTTON_INDEX_5);
}

void XClient::becomeCompositor() {
  const xcb_window_t window = xcb_generate_id(connection_.get());
  xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, window, root_, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
  xcb_set_selection_owner(connection_.get(), window, atom("_NET_WM_CM_S0"), XCB_CURRENT_TIME);
  sync();
}

void XClient::setDpi(int dpi) {
  const std::string resources = "Xft.dpi:\t" + std::to_string(dpi) + "\n";
  xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, root_, XCB_ATOM_RESOURCE_MANAGER,
                      XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(resources.size()), resources.data());
  sync();
}

void XClient::setRootNumbers(const std::string& property, const std::vector<std::uint32_t>& numbers) {
  xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, root_, atom(property), XCB_ATOM_CARDINAL, 32,
                      static_cast<std::uint32_t>(numbers.size()), numbers.data());
  sync();
}

xcb_atom_t XClient::atom(const std::string& name) const {
  const auto reply = owned(xcb_intern_atom_reply(
      connection_.get(),
      xcb_intern_atom(connection_.get(), 0, static_cast<std::uint16_t>(name.size()), name.c_str()), nullptr));
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_ATOM_NONE);
}

void XClient::press(std::uint8_t button) {
  for (const int type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE})
    xcb_test_fake_input(connection_.get(), static_cast<std::uint8_t>(type), button, XCB_CURRENT_TIME, root_,
                        0, 0, 0);
  sync();
}

void XClient::sync() const {
  focusedWindow();
}

}  // namespace tessarin::testing
