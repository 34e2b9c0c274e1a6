#include "platform/x11/ActiveWindowProbe.h"

#include <algorithm>
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

ActiveWindowProbe::ActiveWindowProbe(const std::string& display)
    : connection_(xcb_connect(display.empty() ? nullptr : display.c_str(), nullptr)) {
  if (xcb_connection_has_error(connection_.get()) != 0) return;
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
  activeWindow_ = atom(connection_.get(), "_NET_ACTIVE_WINDOW");
  clientList_ = atom(connection_.get(), "_NET_CLIENT_LIST");
  frameExtents_ = atom(connection_.get(), "_GTK_FRAME_EXTENTS");
  process_ = atom(connection_.get(), "_NET_WM_PID");
}

std::optional<Rect> ActiveWindowProbe::frame() const {
  const auto active = window();
  if (!active) return std::nullopt;
  const auto translated = xcb_translate_coordinates(connection_.get(), *active, root_, 0, 0);
  const auto asked = xcb_get_geometry(connection_.get(), *active);
  const Owned<xcb_translate_coordinates_reply_t> origin(
      xcb_translate_coordinates_reply(connection_.get(), translated, nullptr));
  const Owned<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(connection_.get(), asked, nullptr));
  if (!origin || !size) return std::nullopt;
  const auto [left, right, top, bottom] = shadow(*active);
  return Rect{origin->dst_x + left, origin->dst_y + top, size->width - left - right,
              size->height - top - bottom};
}

std::optional<std::uint32_t> ActiveWindowProbe::process() const {
  const auto active = window();
  if (!active) return std::nullopt;
  const auto reply = numbers(connection_.get(), *active, process_, 1);
  if (!reply) return std::nullopt;
  return *static_cast<std::uint32_t*>(xcb_get_property_value(reply.get()));
}

bool ActiveWindowProbe::isInBackground(std::uint32_t asked) const {
  const auto active = process();
  if (!active || *active == asked) return false;
  std::vector<xcb_get_property_cookie_t> cookies;
  for (const xcb_window_t window : windows()) {
    cookies.push_back(xcb_get_property(connection_.get(), 0, window, process_, XCB_ATOM_CARDINAL, 0, 1));
  }
  bool hasWindow = false;
  for (const auto cookie : cookies) {
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_.get(), cookie, nullptr));
    if (!reply || reply->format != 32 || reply->value_len != 1) continue;
    hasWindow |= *static_cast<std::uint32_t*>(xcb_get_property_value(reply.get())) == asked;
  }
  return hasWindow;
}

std::vector<xcb_window_t> ActiveWindowProbe::windows() const {
  constexpr std::uint32_t mostWindows = 1024;
  const auto cookie =
      xcb_get_property(connection_.get(), 0, root_, clientList_, XCB_ATOM_WINDOW, 0, mostWindows);
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_.get(), cookie, nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

std::optional<xcb_window_t> ActiveWindowProbe::window() const {
  if (root_ == XCB_NONE) return std::nullopt;
  const auto reply = numbers(connection_.get(), root_, activeWindow_, 1);
  if (!reply) return std::nullopt;
  const xcb_window_t window = *static_cast<xcb_window_t*>(xcb_get_property_value(reply.get()));
  return window == XCB_NONE ? std::nullopt : std::optional(window);
}

std::array<double, 4> ActiveWindowProbe::shadow(xcb_window_t window) const {
  const auto reply = numbers(connection_.get(), window, frameExtents_, 4);
  if (!reply) return {};
  const auto* extents = static_cast<std::uint32_t*>(xcb_get_property_value(reply.get()));
  std::array<double, 4> widths{};
  std::copy_n(extents, widths.size(), widths.begin());
  return widths;
}

}  // namespace tessarin::x11
