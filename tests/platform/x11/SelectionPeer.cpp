#include "SelectionPeer.h"

#include <sys/socket.h>

#include <algorithm>
#include <cstring>
#include <stdexcept>

#include "support/Eventually.h"

namespace tessarin::testing {
namespace {

x11::XThread& running(const std::unique_ptr<x11::XThread>& thread) {
  if (!thread) throw std::runtime_error("no display");
  return *thread;
}

}  // namespace

SelectionPeer::SelectionPeer(const std::string& display)
    : thread_(x11::XThread::connect(display)),
      atoms_(running(thread_).connection()),
      window_(xcb_generate_id(thread_->connection())) {
  const std::uint32_t values[] = {1, XCB_EVENT_MASK_PROPERTY_CHANGE};
  xcb_create_window(thread_->connection(), XCB_COPY_FROM_PARENT, window_, thread_->screen()->root, 0, 0, 100,
                    100, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                    XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
  xcb_map_window(thread_->connection(), window_);
  thread_->start([this](const xcb_generic_event_t& event) { handle(event); });
}

SelectionPeer::~SelectionPeer() {
  thread_->stop();
}

void SelectionPeer::call(const std::function<void()>& work) {
  thread_->call(work, std::chrono::seconds(10));
}

void SelectionPeer::own(const std::string& selection, std::vector<PasteboardItem> items, Manner manner) {
  call([&] {
    items_ = std::move(items);
    manner_ = manner;
    const auto time = thread_->serverTime(window_);
    xcb_set_selection_owner(thread_->connection(), window_, atoms_.atom(selection), time);
    thread_->serverTime(window_);
  });
}

void SelectionPeer::setPieceSize(std::size_t size) {
  call([&] { pieceSize_ = size; });
}

void SelectionPeer::becomePrompt() {
  call([&] {
    manner_ = Manner::prompt;
    for (const auto& request : unanswered_) answer(request);
    unanswered_.clear();
  });
}

std::vector<std::string> SelectionPeer::requestedTargets() {
  std::vector<std::string> names;
  call([&] { names = requestedTargets_; });
  return names;
}

void SelectionPeer::takeFocus() {
  call([&] {
    xcb_set_input_focus(thread_->connection(), XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
    thread_->serverTime(window_);
  });
}

void SelectionPeer::handle(const xcb_generic_event_t& event) {
  const int type = event.response_type & 0x7f;
  if (type == XCB_SELECTION_REQUEST) {
    handleRequest(reinterpret_cast<const xcb_selection_request_event_t&>(event));
  } else if (type == XCB_SELECTION_NOTIFY) {
    reading_.property = reinterpret_cast<const xcb_selection_notify_event_t&>(event).property;
    takeProperty();
  } else if (type == XCB_PROPERTY_NOTIFY) {
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.window != window_) {
      if (change.state == XCB_PROPERTY_DELETE) sendNextPiece(change.window, change.atom);
    } else if (reading_.isIncremental && change.state == XCB_PROPERTY_NEW_VALUE &&
               change.atom == reading_.property) {
      takeProperty();
    }
  }
}

// Owning

void SelectionPeer::handleRequest(const xcb_selection_request_event_t& request) {
  requestedTargets_.push_back(atoms_.name(request.target));
  const bool asksWhat = request.target == atoms_.atom("TARGETS");
  const bool answers = manner_ == Manner::prompt || manner_ == Manner::noTargets ||
                       manner_ == Manner::leavesMidway || (manner_ == Manner::onlyTargets && asksWhat);
  if (!answers) {
    unanswered_.push_back(request);
    return;
  }
  answer(request);
  if (manner_ != Manner::leavesMidway || asksWhat) return;
  thread_->serverTime(window_);  // the server has taken in the answer
  shutdown(xcb_get_file_descriptor(thread_->connection()), SHUT_RDWR);
}

void SelectionPeer::answer(const xcb_selection_request_event_t& request) {
  if (request.target == atoms_.atom("TARGETS") && manner_ != Manner::noTargets) {
    sendTargets(request);
    notify(request, true);
  } else {
    notify(request, sendItem(request));
  }
}

void SelectionPeer::sendTargets(const xcb_selection_request_event_t& request) {
  std::vector<std::string> names = {"TIMESTAMP", "TARGETS", "MULTIPLE", "DELETE", "SAVE_TARGETS"};
  for (const auto& item : items_) names.push_back(item.type);
  const auto atoms = atoms_.atoms(names);
  xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                      XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(atoms.size()), atoms.data());
}

bool SelectionPeer::sendItem(const xcb_selection_request_event_t& request) {
  const auto name = atoms_.name(request.target);
  const auto item =
      std::find_if(items_.begin(), items_.end(), [&](const PasteboardItem& i) { return i.type == name; });
  if (item == items_.end()) return false;
  const bool isWhole = pieceSize_ == 0 || item->data.size() <= pieceSize_;
  const auto size = static_cast<std::uint32_t>(item->data.size());
  if (isWhole) {
    xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        request.target, 8, size, item->data.data());
    return true;
  }
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_change_window_attributes(thread_->connection(), request.requestor, XCB_CW_EVENT_MASK, &events);
  xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                      atoms_.atom("INCR"), 32, 1, &size);
  sendings_.push_back({request.requestor, request.property, request.target, item->data, false});
  return true;
}

void SelectionPeer::sendNextPiece(xcb_window_t requestor, xcb_atom_t property) {
  for (auto& sending : sendings_) {
    if (sending.requestor != requestor || sending.property != property || sending.lastSent) continue;
    const std::string piece = sending.rest.substr(0, pieceSize_);
    sending.rest.erase(0, piece.size());
    sending.lastSent = piece.empty();
    xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, requestor, property, sending.type, 8,
                        static_cast<std::uint32_t>(piece.size()), piece.data());
  }
}

void SelectionPeer::notify(const xcb_selection_request_event_t& request, bool answered) {
  xcb_selection_notify_event_t event{};
  event.response_type = XCB_SELECTION_NOTIFY;
  event.time = request.time;
  event.requestor = request.requestor;
  event.selection = request.selection;
  event.target = request.target;
  event.property = answered ? request.property : xcb_atom_t{XCB_ATOM_NONE};
  char bytes[32] = {};
  std::memcpy(bytes, &event, sizeof(event));
  xcb_send_event(thread_->connection(), 0, request.requestor, 0, bytes);
}

// Reading

std::optional<std::string> SelectionPeer::read(const std::string& selection, const std::string& target,
                                               int pieces) {
  call([&] {
    reading_ = {.piecesLeft = pieces};
    xcb_convert_selection(thread_->connection(), window_, atoms_.atom(selection), atoms_.atom(target),
                          atoms_.atom("PEER_DATA"), XCB_CURRENT_TIME);
  });
  std::optional<std::string> data;
  eventually([&] {
    bool isOver = false;
    call([&] {
      isOver = reading_.isDone || reading_.piecesLeft == 0;
      if (isOver) data = reading_.data;
    });
    return isOver;
  });
  return data;
}

std::string SelectionPeer::lastReadType() {
  std::string name;
  call([&] { name = atoms_.name(reading_.type); });
  return name;
}

std::vector<std::string> SelectionPeer::targets(const std::string& selection) {
  const auto data = read(selection, "TARGETS");
  if (!data) return {};
  std::vector<xcb_atom_t> atoms(data->size() / 4);
  std::memcpy(atoms.data(), data->data(), atoms.size() * 4);
  std::vector<std::string> names;
  call([&] { names = atoms_.names(atoms); });
  return names;
}

void SelectionPeer::takeProperty() {
  if (reading_.piecesLeft == 0) return;
  reading_.isDone = reading_.property == XCB_ATOM_NONE;
  if (reading_.isDone) return;
  const auto connection = thread_->connection();
  const x11::Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
      connection, xcb_get_property(connection, 1, window_, reading_.property, 0, 0, 0x1fffffff), nullptr));
  if (!reply) return;
  if (reply->type == atoms_.atom("INCR")) {
    reading_.isIncremental = true;
    return;
  }
  const auto length = static_cast<std::size_t>(xcb_get_property_value_length(reply.get()));
  reading_.type = reply->type;
  if (!reading_.data) reading_.data.emplace();
  reading_.data->append(static_cast<const char*>(xcb_get_property_value(reply.get())), length);
  reading_.isDone = !reading_.isIncremental || length == 0;
  if (reading_.piecesLeft > 0) --reading_.piecesLeft;
}

}  // namespace tessarin::testing
