#include "platform/qt/RandrMonitors.h"

#include <xcb/randr.h>

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string>

namespace tessarin::ui::monitors {
namespace {

struct Free {
  void operator()(void* pointer) const noexcept { std::free(pointer); }
};
template <class T>
using Owned = std::unique_ptr<T, Free>;

xcb_get_property_cookie_t ask(const QtConnection& x, xcb_atom_t property) {
  constexpr std::uint32_t enoughWords = 4 * 64;  // four numbers for each of 64 desktops
  return xcb_get_property(x.connection, 0, x.root, property, XCB_GET_PROPERTY_TYPE_ANY, 0, enoughWords);
}

std::vector<std::uint32_t> answer(const QtConnection& x, xcb_get_property_cookie_t cookie) {
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(x.connection, cookie, nullptr));
  if (!reply || reply->format != 32) return {};
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  return {first, first + xcb_get_property_value_length(reply.get()) / 4};
}

Owned<xcb_get_geometry_reply_t> geometryOf(const QtConnection& x, xcb_window_t window) {
  return Owned<xcb_get_geometry_reply_t>(
      xcb_get_geometry_reply(x.connection, xcb_get_geometry(x.connection, window), nullptr));
}

std::vector<Rect> wholeRoot(const QtConnection& x) {
  const auto root = geometryOf(x, x.root);
  if (!root) return {};
  return {{0, 0, static_cast<double>(root->width), static_cast<double>(root->height)}};
}

std::optional<xcb_randr_get_monitors_cookie_t> askForMonitors(const QtConnection& x) {
  const auto* extension = xcb_get_extension_data(x.connection, &xcb_randr_id);
  if (extension == nullptr || extension->present == 0) return std::nullopt;
  return xcb_randr_get_monitors(x.connection, x.root, 1);
}

std::vector<Rect> framesFrom(const QtConnection& x, xcb_randr_get_monitors_cookie_t asked) {
  const Owned<xcb_randr_get_monitors_reply_t> reply(
      xcb_randr_get_monitors_reply(x.connection, asked, nullptr));
  if (!reply) return {};
  std::vector<Rect> found;
  for (auto i = xcb_randr_get_monitors_monitors_iterator(reply.get()); i.rem > 0;
       xcb_randr_monitor_info_next(&i)) {
    const Rect frame{static_cast<double>(i.data->x), static_cast<double>(i.data->y),
                     static_cast<double>(i.data->width), static_cast<double>(i.data->height)};
    found.insert(i.data->primary != 0 ? found.begin() : found.end(), frame);
  }
  return found;
}

std::optional<Rect> workAreaOf(const std::vector<std::uint32_t>& areas,
                               const std::vector<std::uint32_t>& desktop) {
  std::size_t first = desktop.empty() ? 0 : std::size_t{4} * desktop.front();
  if (first + 4 > areas.size()) first = 0;
  if (areas.size() < 4) return std::nullopt;
  const auto number = [&](std::size_t i) {
    return static_cast<double>(static_cast<std::int32_t>(areas[first + i]));
  };
  return Rect{number(0), number(1), number(2), number(3)};
}

}  // namespace

Sources sources(const QtConnection& x) {
  return {x.atom("_NET_WORKAREA"), x.atom("_NET_CURRENT_DESKTOP"), x.atom("_NET_ACTIVE_WINDOW"),
          x.atom("_NET_WM_CM_S" + std::to_string(x.screenNumber))};
}

Desktop desktop(const QtConnection& x, const Sources& sources) {
  const auto monitors = askForMonitors(x);
  const auto areas = ask(x, sources.workArea);
  const auto current = ask(x, sources.currentDesktop);
  const auto active = ask(x, sources.activeWindow);
  const auto compositor = xcb_get_selection_owner(x.connection, sources.compositor);
  Desktop found;
  if (monitors) found.frames = framesFrom(x, *monitors);
  if (found.frames.empty()) found.frames = wholeRoot(x);
  const auto areaNumbers = answer(x, areas);
  found.workArea = workAreaOf(areaNumbers, answer(x, current));
  const auto window = answer(x, active);
  if (!window.empty() && window.front() != XCB_NONE) found.activeWindow = window.front();
  const Owned<xcb_get_selection_owner_reply_t> owner(
      xcb_get_selection_owner_reply(x.connection, compositor, nullptr));
  found.isComposited = owner && owner->owner != XCB_NONE;
  return found;
}

std::optional<Point> centreOf(const QtConnection& x, xcb_window_t window) {
  const auto translated = xcb_translate_coordinates(x.connection, window, x.root, 0, 0);
  const auto geometry = geometryOf(x, window);
  const Owned<xcb_translate_coordinates_reply_t> origin(
      xcb_translate_coordinates_reply(x.connection, translated, nullptr));
  if (!geometry || !origin) return std::nullopt;
  return Point{origin->dst_x + geometry->width / 2.0, origin->dst_y + geometry->height / 2.0};
}

std::optional<Point> pointer(const QtConnection& x) {
  const Owned<xcb_query_pointer_reply_t> reply(
      xcb_query_pointer_reply(x.connection, xcb_query_pointer(x.connection, x.root), nullptr));
  if (!reply) return std::nullopt;
  return Point{static_cast<double>(reply->root_x), static_cast<double>(reply->root_y)};
}

}  // namespace tessarin::ui::monitors
