#include "platform/x11/ActiveWindowProbe.h"

#include <algorithm>
#include <string_view>
#include <tuple>

namespace tessarin::x11 {
namespace {

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
  const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, cookie, nullptr));
  return reply ? reply->atom : static_cast<xcb_atom_t>(XCB_NONE);
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

xcb_get_property_cookie_t ActiveWindowProbe::askFor(xcb_window_t window, xcb_atom_t property,
                                                    std::uint32_t count) const {
  return xcb_get_property(connection_.get(), 0, window, property, XCB_ATOM_ANY, 0, count);
}

/// Null unless there are at least `count` numbers of 32 bits.
Owned<xcb_get_property_reply_t> ActiveWindowProbe::numbers(xcb_get_property_cookie_t asked,
                                                           std::uint32_t count) const {
  Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection_.get(), asked, nullptr));
  return reply && reply->format == 32 && reply->value_len >= count ? std::move(reply) : nullptr;
}

std::optional<std::uint32_t> ActiveWindowProbe::number(xcb_get_property_cookie_t asked) const {
  const auto reply = numbers(asked, 1);
  if (!reply) return std::nullopt;
  return *static_cast<std::uint32_t*>(xcb_get_property_value(reply.get()));
}

template <class Ask>
auto ActiveWindowProbe::askActive(Ask ask) -> std::optional<decltype(ask(xcb_window_t{}))> {
  if (root_ == XCB_NONE) return std::nullopt;
  const auto active = askFor(root_, activeWindow_, 1);
  const auto guessed = ask(last_);
  const xcb_window_t window = number(active).value_or(XCB_NONE);
  if (window != XCB_NONE && window == last_) return guessed;
  const auto discard = [this](auto... cookies) {
    (xcb_discard_reply(connection_.get(), cookies.sequence), ...);
  };
  std::apply(discard, guessed);
  last_ = window;
  if (window == XCB_NONE) return std::nullopt;
  return ask(window);
}

std::optional<Rect> ActiveWindowProbe::frame() {
  const auto asked = askActive([this](xcb_window_t window) {
    return std::tuple(xcb_translate_coordinates(connection_.get(), window, root_, 0, 0),
                      xcb_get_geometry(connection_.get(), window), askFor(window, frameExtents_, 4));
  });
  if (!asked) return std::nullopt;
  const auto [translated, geometry, extents] = *asked;
  const Owned<xcb_translate_coordinates_reply_t> origin(
      xcb_translate_coordinates_reply(connection_.get(), translated, nullptr));
  const Owned<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(connection_.get(), geometry, nullptr));
  const auto shadow = numbers(extents, 4);
  if (!origin || !size) return std::nullopt;
  std::array<double, 4> widths{};  // at the left, right, top and bottom
  if (shadow) {
    std::copy_n(static_cast<std::uint32_t*>(xcb_get_property_value(shadow.get())), 4, widths.begin());
  }
  const auto [left, right, top, bottom] = widths;
  return Rect{origin->dst_x + left, origin->dst_y + top, size->width - left - right,
              size->height - top - bottom};
}

std::optional<std::uint32_t> ActiveWindowProbe::process() {
  const auto asked =
      askActive([this](xcb_window_t window) { return std::tuple(askFor(window, process_, 1)); });
  return asked ? number(std::get<0>(*asked)) : std::nullopt;
}

bool ActiveWindowProbe::isInBackground(std::uint32_t asked) {
  const auto active = process();
  if (!active || *active == asked) return false;
  std::vector<xcb_get_property_cookie_t> cookies;
  for (const xcb_window_t window : windows()) {
    cookies.push_back(askFor(window, process_, 1));
  }
  bool hasWindow = false;
  for (const auto cookie : cookies) hasWindow |= number(cookie) == asked;
  return hasWindow;
}

std::vector<xcb_window_t> ActiveWindowProbe::windows() const {
  constexpr std::uint32_t mostWindows = 1024;
  const auto reply = numbers(askFor(root_, clientList_, mostWindows), 0);
  if (!reply) return {};
  const auto* first = static_cast<const xcb_window_t*>(xcb_get_property_value(reply.get()));
  return {first, first + reply->value_len};
}

}  // namespace tessarin::x11
