#include "platform/x11/SelectionOwner.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "platform/x11/Atoms.h"
#include "platform/x11/FocusedClient.h"
#include "platform/x11/Handles.h"
#include "platform/x11/OutgoingTransfers.h"
#include "platform/x11/SelectionTargets.h"
#include "platform/x11/XThread.h"

namespace tessarin::x11 {

Representation unitsRepresentation(xcb_atom_t target, xcb_atom_t type,
                                   const std::vector<std::uint32_t>& units) {
  std::string bytes(units.size() * sizeof(std::uint32_t), '\0');
  if (!units.empty()) std::memcpy(bytes.data(), units.data(), bytes.size());
  return {target, type, 32, std::make_shared<const std::string>(std::move(bytes))};
}

xcb_window_t createSelectionWindow(xcb_connection_t* connection, const xcb_screen_t& screen) {
  const xcb_window_t window = xcb_generate_id(connection);
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen.root, -1, -1, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
  return window;
}

SelectionOwner::SelectionOwner(XThread& thread, Atoms& atoms, OutgoingTransfers& transfers,
                               xcb_window_t window, xcb_atom_t selection)
    : thread_(thread),
      atoms_(atoms),
      transfers_(transfers),
      window_(window),
      selection_(selection),
      targets_(atoms.atom("TARGETS")),
      timestamp_(atoms.atom("TIMESTAMP")),
      multiple_(atoms.atom("MULTIPLE")),
      pair_(atoms.atom("ATOM_PAIR")),
      chromium_(atoms.atom("CHROME_SELECTION")) {}

bool SelectionOwner::take(std::vector<Representation> contents, TextRead textRead) {
  time_ = thread_.serverTime(window_);
  contents_ = std::move(contents);
  textRead_ = std::move(textRead);
  readManner_ = ReadManner::plain;
  requestCount_ = 0;
  textRequestCount_ = 0;
  chromiumRequestCount_ = chromiumReadAt_ = 0;
  expectedClient_ = textRead_ ? focusedClient(thread_.connection(), thread_.screen()->root) : 0;
  xcb_set_selection_owner(thread_.connection(), window_, selection_, time_);
  isOwner_ = isOwnerAtServer();
  if (!isOwner_) handleLoss();
  return isOwner_;
}

bool SelectionOwner::isOwnerAtServer() const {
  const Owned<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
      thread_.connection(), xcb_get_selection_owner(thread_.connection(), selection_), nullptr));
  return owner && owner->owner == window_;
}

void SelectionOwner::clear() {
  time_ = thread_.serverTime(window_);
  xcb_set_selection_owner(thread_.connection(), XCB_WINDOW_NONE, selection_, time_);
  handleLoss();
}

void SelectionOwner::handleLoss() {
  isOwner_ = false;
  contents_.clear();
  textRead_ = nullptr;
}

void SelectionOwner::handle(const xcb_generic_event_t& event) {
  const int type = event.response_type & 0x7f;
  if (type == XCB_SELECTION_REQUEST) {
    const auto& request = reinterpret_cast<const xcb_selection_request_event_t&>(event);
    if (request.selection == selection_) handleRequest(request);
  } else if (type == XCB_SELECTION_CLEAR) {
    const auto& loss = reinterpret_cast<const xcb_selection_clear_event_t&>(event);
    // It may be late news of an ownership before this one.
    if (loss.selection == selection_ && isOwner_ && !isOwnerAtServer()) handleLoss();
  }
}

void SelectionOwner::handleRequest(const xcb_selection_request_event_t& request) {
  ++requestCount_;
  // Programs older than the convention leave the property to us.
  const xcb_atom_t property = request.property == XCB_ATOM_NONE ? request.target : request.property;
  const bool answered =
      isOwner_ && (request.target == multiple_ ? answerMultiple(request.requestor, property)
                                               : answer(request.requestor, request.target, property));
  xcb_selection_notify_event_t notify{};
  notify.response_type = XCB_SELECTION_NOTIFY;
  notify.time = request.time;
  notify.requestor = request.requestor;
  notify.selection = request.selection;
  notify.target = request.target;
  notify.property = answered ? property : xcb_atom_t{XCB_ATOM_NONE};
  char bytes[32] = {};  // every event has this size on its way
  static_assert(sizeof(notify) <= sizeof(bytes));
  std::memcpy(bytes, &notify, sizeof(notify));
  xcb_send_event(thread_.connection(), 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, bytes);
}

bool SelectionOwner::answer(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property) {
  const auto found = representation(target);
  if (!found) return false;
  noteRequest(target, property);
  transfers_.send(requestor, property, *found, readObserver(requestor, target));
  return true;
}

// Chromium, and what is built on it, has its answers put there. Its own process reads when the chord comes,
// and asks for the list of targets once or twice before; the page does when it is given the processor, asks
// for the list nine times before and four times after, and drops what it has read when the owner has changed
// in between. For its address bar its own process alone reads, asks three times before, and once after.
void SelectionOwner::noteRequest(xcb_atom_t target, xcb_atom_t property) {
  constexpr std::int64_t readForAddressBar = 4;
  constexpr std::int64_t checks = 4;
  const bool isText = isTextTarget(atoms_.name(target));
  if (isText) ++textRequestCount_;
  if (property != chromium_) return;
  const std::int64_t count = ++chromiumRequestCount_;
  if (isText) {
    chromiumReadAt_ = count;
    readManner_ = count > readForAddressBar ? ReadManner::checking : ReadManner::ahead;
  } else if (chromiumReadAt_ == readForAddressBar) {
    readManner_ = count == readForAddressBar + 1 ? ReadManner::likely : ReadManner::ahead;
  } else if (readManner_ == ReadManner::checking && count == chromiumReadAt_ + checks) {
    readManner_ = ReadManner::checked;
  }
}

bool SelectionOwner::answerMultiple(xcb_window_t requestor, xcb_atom_t property) {
  constexpr std::uint32_t mostUnits = 1024;
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
      thread_.connection(),
      xcb_get_property(thread_.connection(), 0, requestor, property, XCB_GET_PROPERTY_TYPE_ANY, 0, mostUnits),
      nullptr));
  if (!reply || reply->format != 32) return false;
  const auto* first = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
  std::vector<std::uint32_t> pairs(first, first + reply->value_len);
  for (std::size_t i = 0; i + 1 < pairs.size(); i += 2) {
    const bool answered = pairs[i + 1] != XCB_ATOM_NONE && answer(requestor, pairs[i], pairs[i + 1]);
    if (!answered) pairs[i + 1] = XCB_ATOM_NONE;
  }
  xcb_change_property(thread_.connection(), XCB_PROP_MODE_REPLACE, requestor, property, pair_, 32,
                      static_cast<std::uint32_t>(pairs.size()), pairs.data());
  return true;
}

std::optional<Representation> SelectionOwner::representation(xcb_atom_t target) const {
  if (target == targets_) return targetList();
  if (target == timestamp_) return unitsRepresentation(target, XCB_ATOM_INTEGER, {time_});
  const auto found = std::find_if(contents_.begin(), contents_.end(),
                                  [&](const Representation& r) { return r.target == target; });
  if (found == contents_.end()) return std::nullopt;
  return *found;
}

Representation SelectionOwner::targetList() const {
  std::vector<std::uint32_t> units = {targets_, timestamp_, multiple_};
  for (const auto& representation : contents_) units.push_back(representation.target);
  return unitsRepresentation(targets_, XCB_ATOM_ATOM, units);
}

SelectionOwner::TextRead SelectionOwner::readObserver(xcb_window_t requestor, xcb_atom_t target) {
  if (!textRead_ || !isTextTarget(atoms_.name(target))) return nullptr;
  const auto reader = clientOf(thread_.connection(), requestor);
  const bool hasFocus =
      reader == expectedClient_ || reader == focusedClient(thread_.connection(), thread_.screen()->root);
  return hasFocus ? textRead_ : nullptr;
}

}  // namespace tessarin::x11
