#include "Screen.h"

#include <xcb/xtest.h>

#include <cstdlib>
#include <utility>

#include "Moment.h"

namespace tessarin::stopwatch {
namespace {

/// Of the picture in black and white: windows without the focus have other shades, and take their time to
/// change them.
std::uint64_t numberOf(const std::uint8_t* bytes, int count) {
  constexpr int bytesPerPixel = 4;
  constexpr int green = 1;
  std::string dark;
  for (int i = green; i < count; i += bytesPerPixel) dark += bytes[i] < 0x80 ? '1' : '0';
  return std::hash<std::string>()(dark) | 1;
}

bool meet(const xcb_rectangle_t& a, const xcb_rectangle_t& b) {
  return a.x < b.x + b.width && b.x < a.x + a.width && a.y < b.y + b.height && b.y < a.y + a.height;
}

}  // namespace

Screen::Screen() {
  if (!isConnected()) return;
  root_ = xcb_setup_roots_iterator(xcb_get_setup(connection_.get())).data->root;
  const auto* extension = xcb_get_extension_data(connection_.get(), &xcb_damage_id);
  if (extension != nullptr) damageEvent_ = extension->first_event;
  const x11::Owned<xcb_damage_query_version_reply_t> version(xcb_damage_query_version_reply(
      connection_.get(), xcb_damage_query_version(connection_.get(), 1, 1), nullptr));
}

void Screen::press(const std::vector<std::string>& moves) {
  for (const std::string& move : moves) {
    const std::uint8_t type = move.front() == '+' ? XCB_KEY_PRESS : XCB_KEY_RELEASE;
    const auto code = static_cast<std::uint8_t>(std::atoi(move.c_str() + 1));
    xcb_test_fake_input(connection_.get(), type, code, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
  }
  const std::string moment = now();
  xcb_flush(connection_.get());
  report("began " + moment);
}

void Screen::watch(const std::string& name, xcb_window_t window, xcb_rectangle_t place) {
  forget(name);
  Part part{window, place, xcb_generate_id(connection_.get()), 0};
  xcb_damage_create(connection_.get(), part.damage, window, XCB_DAMAGE_REPORT_LEVEL_RAW_RECTANGLES);
  part.looks = look(part);
  parts_[name] = part;
  tell(name);
}

void Screen::forget(const std::string& name) {
  const auto found = parts_.find(name);
  if (found == parts_.end()) return;
  xcb_damage_destroy(connection_.get(), found->second.damage);
  xcb_flush(connection_.get());
  parts_.erase(found);
}

void Screen::tell(const std::string& name) {
  const auto found = parts_.find(name);
  report("looks " + name + " " + std::to_string(found == parts_.end() ? 0 : look(found->second)));
}

std::uint64_t Screen::look(const Part& part) const {
  const auto& [x, y, width, height] = part.place;
  const x11::Owned<xcb_get_image_reply_t> image(xcb_get_image_reply(
      connection_.get(),
      xcb_get_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, part.window, x, y, width, height, ~0U),
      nullptr));
  return image ? numberOf(xcb_get_image_data(image.get()), xcb_get_image_data_length(image.get())) : 0;
}

void Screen::openKeyWindow() {
  keyWindow_ = xcb_generate_id(connection_.get());
  const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS;
  xcb_create_window(connection_.get(), XCB_COPY_FROM_PARENT, keyWindow_, root_, 40, 40, 200, 100, 0,
                    XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  xcb_map_window(connection_.get(), keyWindow_);
  xcb_flush(connection_.get());
  report("window " + std::to_string(keyWindow_));
}

void Screen::closeKeyWindow() {
  xcb_destroy_window(connection_.get(), keyWindow_);
  xcb_flush(connection_.get());
}

void Screen::takeIn() {
  while (const x11::Owned<xcb_generic_event_t> event{xcb_poll_for_event(connection_.get())}) {
    const std::uint8_t type = event->response_type & 0x7f;
    if (type == XCB_KEY_PRESS) {
      const auto code = reinterpret_cast<const xcb_key_press_event_t&>(*event).detail;
      report("key " + now() + " " + std::to_string(code));
    } else if (type == damageEvent_ + XCB_DAMAGE_NOTIFY) {
      onDrawn(reinterpret_cast<const xcb_damage_notify_event_t&>(*event));
    }
  }
}

void Screen::onDrawn(const xcb_damage_notify_event_t& drawn) {
  for (auto& [name, part] : parts_) {
    if (part.damage != drawn.damage || !meet(part.place, drawn.area)) continue;
    const std::uint64_t looks = look(part);
    if (std::exchange(part.looks, looks) == looks) continue;
    report("picture " + now() + " " + name + " " + std::to_string(looks));
  }
}

}  // namespace tessarin::stopwatch
