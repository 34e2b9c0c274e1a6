#include "platform/x11/SlaveKeyboards.h"

#include <xcb/xinput.h>

#include <string_view>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {
namespace {

KeySet keySet(const std::uint8_t* bytes) {
  KeySet keys;
  for (std::size_t code = 0; code < keys.size(); ++code) {
    keys[code] = ((bytes[code / 8] >> (code % 8)) & 1) != 0;
  }
  return keys;
}

KeySet keysDownOn(xcb_connection_t* connection, std::uint8_t device) {
  const Owned<xcb_input_query_device_state_reply_t> reply(xcb_input_query_device_state_reply(
      connection, xcb_input_query_device_state(connection, device), nullptr));
  if (!reply) return {};
  // Each class says its length; the one for keys is the only one of interest.
  const auto* bytes = reinterpret_cast<const std::uint8_t*>(reply.get() + 1);
  const auto* end =
      reinterpret_cast<const std::uint8_t*>(reply.get()) + 32 + (std::size_t{4} * reply->length);
  for (int i = 0; i < reply->num_classes && bytes + 2 <= end && bytes[1] != 0; ++i, bytes += bytes[1]) {
    if (bytes[0] != XCB_INPUT_INPUT_CLASS_KEY || bytes[1] < sizeof(xcb_input_key_state_t)) continue;
    return keySet(reinterpret_cast<const xcb_input_key_state_t*>(bytes)->keys);
  }
  return {};
}

bool isSynthetic(const xcb_input_xi_device_info_t* device) {
  const std::string_view name(xcb_input_xi_device_info_name(device), device->name_len);
  return name.ends_with("XTEST keyboard");
}

}  // namespace

KeysDown keysDown(xcb_connection_t* connection) {
  KeysDown result;
  const Owned<xcb_input_xi_query_device_reply_t> reply(xcb_input_xi_query_device_reply(
      connection, xcb_input_xi_query_device(connection, XCB_INPUT_DEVICE_ALL), nullptr));
  if (!reply) return result;
  for (auto at = xcb_input_xi_query_device_infos_iterator(reply.get()); at.rem > 0;
       xcb_input_xi_device_info_next(&at)) {
    if (at.data->type != XCB_INPUT_DEVICE_TYPE_SLAVE_KEYBOARD) continue;
    KeySet& keys = isSynthetic(at.data) ? result.synthetic : result.real;
    keys |= keysDownOn(connection, static_cast<std::uint8_t>(at.data->deviceid));
  }
  return result;
}

KeySet sessionKeysDown(xcb_connection_t* connection) {
  const Owned<xcb_query_keymap_reply_t> reply(
      xcb_query_keymap_reply(connection, xcb_query_keymap(connection), nullptr));
  return reply ? keySet(reply->keys) : KeySet();
}

}  // namespace tessarin::x11
