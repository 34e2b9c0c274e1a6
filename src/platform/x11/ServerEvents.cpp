#include "platform/x11/ServerEvents.h"

#include <xcb/xinput.h>

#include "platform/x11/Handles.h"
#include "platform/x11/KeyboardLayout.h"
#include "platform/x11/XkbProtocol.h"

namespace tessarin::x11 {
namespace {

constexpr std::uint8_t sentBit = 0x80;

bool isLoss(const xcb_focus_out_event_t& event) {
  const bool isMove = event.mode == XCB_NOTIFY_MODE_NORMAL || event.mode == XCB_NOTIFY_MODE_WHILE_GRABBED;
  return isMove && event.detail != XCB_NOTIFY_DETAIL_INFERIOR;
}

}  // namespace

ServerEvents::ServerEvents(const SessionKeyboard& keyboard) : keyboard_(keyboard) {
  xcb_connection_t* connection = keyboard.connection;
  announceXkb(connection);
  const Owned<xcb_input_xi_query_version_reply_t> input(
      xcb_input_xi_query_version_reply(connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
  if (const auto* data = xcb_get_extension_data(connection, &xcb_xkb_id)) xkbEvent_ = data->first_event;
  if (const auto* data = xcb_get_extension_data(connection, &xcb_input_id)) inputOpcode_ = data->major_opcode;
  selectXkbEvents();
}

void ServerEvents::selectXkbEvents() {
  constexpr std::uint16_t whole = XCB_XKB_EVENT_TYPE_NEW_KEYBOARD_NOTIFY | XCB_XKB_EVENT_TYPE_MAP_NOTIFY;
  constexpr std::uint16_t maps = XCB_XKB_MAP_PART_KEY_TYPES | XCB_XKB_MAP_PART_KEY_SYMS |
                                 XCB_XKB_MAP_PART_MODIFIER_MAP | XCB_XKB_MAP_PART_KEY_ACTIONS |
                                 XCB_XKB_MAP_PART_VIRTUAL_MODS | XCB_XKB_MAP_PART_VIRTUAL_MOD_MAP;
  xcb_xkb_select_events(keyboard_.connection, XCB_XKB_ID_USE_CORE_KBD, whole, 0, whole, maps, maps, nullptr);
}

void ServerEvents::sync() {
  const Owned<xcb_get_input_focus_reply_t> reply(
      xcb_get_input_focus_reply(keyboard_.connection, xcb_get_input_focus(keyboard_.connection), nullptr));
}

void ServerEvents::watchReleases(bool watched) {
  struct {
    xcb_input_event_mask_t header;
    std::uint32_t mask;
  } selection{{XCB_INPUT_DEVICE_ALL, 1},
              watched ? std::uint32_t{XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE} : 0U};
  xcb_input_xi_select_events(keyboard_.connection, keyboard_.root, 1, &selection.header);
}

std::optional<HeldPress> ServerEvents::heldPress(const xcb_generic_event_t& event) const {
  if (event.response_type != XCB_GE_GENERIC) return std::nullopt;
  const auto& press = reinterpret_cast<const xcb_input_key_press_event_t&>(event);
  if (press.extension != inputOpcode_ || press.event_type != XCB_INPUT_KEY_PRESS) return std::nullopt;
  return HeldPress{{static_cast<std::uint8_t>(press.detail), static_cast<std::uint8_t>(press.mods.effective),
                    press.group.effective},
                   press.full_sequence};
}

std::optional<HeldPress> ServerEvents::pick(xcb_generic_event_t* (*poll)(xcb_connection_t*)) {
  while (const Owned<xcb_generic_event_t> event{poll(keyboard_.connection)}) {
    if (const auto press = heldPress(*event)) return press;
    note(*event);
  }
  return std::nullopt;
}

void ServerEvents::note(const xcb_generic_event_t& event) {
  const std::uint8_t type = event.response_type & ~sentBit;
  if (type == XCB_MAPPING_NOTIFY) {
    layoutChanged_ = true;
  } else if (type == XCB_FOCUS_OUT) {
    focusLost_ |= isLoss(reinterpret_cast<const xcb_focus_out_event_t&>(event));
  } else if (type == xkbEvent_ && xkbEvent_ != 0) {
    layoutChanged_ |= event.pad0 == XCB_XKB_NEW_KEYBOARD_NOTIFY || event.pad0 == XCB_XKB_MAP_NOTIFY;
  } else if (type == XCB_GE_GENERIC) {
    const auto& raw = reinterpret_cast<const xcb_input_raw_key_release_event_t&>(event);
    if (raw.extension == inputOpcode_ && raw.event_type == XCB_INPUT_RAW_KEY_RELEASE) {
      releases_.push_back(static_cast<std::uint8_t>(raw.detail));
    }
  }
}

}  // namespace tessarin::x11
