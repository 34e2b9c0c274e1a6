#include "platform/x11/SelectionReader.h"

#include <limits>
#include <utility>

#include "platform/x11/Atoms.h"
#include "platform/x11/Handles.h"
#include "platform/x11/XThread.h"

namespace tessarin::x11 {
namespace {

/// An owner that is still at work when we have lost patience finds the window for so long: several programs
/// die of the error that a vanished one gives them.
constexpr std::chrono::seconds windowGrace{30};

}  // namespace

SelectionReader::SelectionReader(XThread& thread, Atoms& atoms, xcb_atom_t selection, Received received)
    : thread_(thread),
      atoms_(atoms),
      selection_(selection),
      incremental_(atoms.atom("INCR")),
      received_(std::move(received)),
      window_(xcb_generate_id(thread.connection())) {
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(thread_.connection(), XCB_COPY_FROM_PARENT, window_, thread_.screen()->root, -1, -1, 1, 1,
                    0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
}

SelectionReader::~SelectionReader() {
  if (requests_.empty()) {
    xcb_destroy_window(thread_.connection(), window_);
    return;
  }
  thread_.after(windowGrace, [connection = thread_.connection(), window = window_] {
    xcb_destroy_window(connection, window);
  });
}

void SelectionReader::request(xcb_atom_t target) {
  const xcb_atom_t property = atoms_.atom("TESSARIN_TRANSFER_" + std::to_string(count_++));
  requests_[property].target = target;
  // The current time: with an earlier one, an owner that has just taken over would have to refuse.
  xcb_convert_selection(thread_.connection(), window_, selection_, target, property, XCB_CURRENT_TIME);
}

void SelectionReader::handle(const xcb_generic_event_t& event) {
  switch (event.response_type & 0x7f) {
    case XCB_SELECTION_NOTIFY:
      handleAnswer(reinterpret_cast<const xcb_selection_notify_event_t&>(event));
      break;
    case XCB_PROPERTY_NOTIFY:
      handleChange(reinterpret_cast<const xcb_property_notify_event_t&>(event));
      break;
    default:
      break;
  }
}

void SelectionReader::handleAnswer(const xcb_selection_notify_event_t& event) {
  if (event.requestor != window_ || event.selection != selection_) return;
  if (event.property != XCB_ATOM_NONE) {
    readProperty(event.property);
    return;
  }
  for (const auto& [property, request] : requests_) {
    if (request.target != event.target || request.isIncremental) continue;
    finish(property, false);
    return;
  }
}

void SelectionReader::handleChange(const xcb_property_notify_event_t& event) {
  if (event.window != window_ || event.state != XCB_PROPERTY_NEW_VALUE) return;
  const auto found = requests_.find(event.atom);
  if (found != requests_.end() && found->second.isIncremental) readProperty(event.atom);
}

void SelectionReader::readProperty(xcb_atom_t property) {
  if (!requests_.contains(property)) return;
  constexpr auto everything = std::numeric_limits<std::uint32_t>::max() / 4;
  const auto cookie =
      xcb_get_property(thread_.connection(), 1, window_, property, XCB_GET_PROPERTY_TYPE_ANY, 0, everything);
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(thread_.connection(), cookie, nullptr));
  if (!reply || reply->type == XCB_ATOM_NONE) {
    // In the middle of a transfer this is an event for a piece that was taken in with the one before.
    if (!requests_[property].isIncremental) finish(property, false);
    return;
  }
  take(property, *reply);
}

void SelectionReader::take(xcb_atom_t property, const xcb_get_property_reply_t& reply) {
  Request& request = requests_[property];
  if (!request.isIncremental && reply.type == incremental_) {
    request.isIncremental = true;  // reading the property has deleted it, which asks for the first piece
    return;
  }
  const auto length = static_cast<std::size_t>(xcb_get_property_value_length(&reply));
  request.data.append(static_cast<const char*>(xcb_get_property_value(&reply)), length);
  if (length > 0 || request.representation.type == XCB_ATOM_NONE) {
    request.representation.type = reply.type;
    request.representation.format = reply.format == 0 ? 8 : reply.format;
  }
  if (!request.isIncremental || length == 0) finish(property, true);
}

void SelectionReader::finish(xcb_atom_t property, bool delivered) {
  auto node = requests_.extract(property);
  Request& request = node.mapped();
  if (!delivered) {
    received_(request.target, std::nullopt);
    return;
  }
  request.representation.target = request.target;
  request.representation.data = std::make_shared<const std::string>(std::move(request.data));
  received_(request.target, std::move(request.representation));
}

}  // namespace tessarin::x11
