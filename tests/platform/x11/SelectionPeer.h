#pragma once

#include <sys/socket.h>

#include <algorithm>
#include <cstring>
#include <map>
#include <stdexcept>

#include "platform/Pasteboard.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/XThread.h"
#include "support/Eventually.h"

namespace tessarin::testing {

constexpr std::chrono::seconds patience{30};

inline x11::XThread& running(const std::unique_ptr<x11::XThread>& thread) {
  if (!thread) throw std::runtime_error("no display");
  return *thread;
}

inline std::string bytesOf(const x11::Owned<xcb_get_property_reply_t>& reply) {
  return {static_cast<const char*>(xcb_get_property_value(reply.get())),
          static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

/// Another program with a clipboard of its own: it owns selections, in whatever manner the test asks for, and
/// reads those of others. It has a window on the screen, which can take the keyboard focus.
class SelectionPeer {
  /// Runs on the thread, and gives what the work gives.
  auto onThread(auto work) {
    std::optional<decltype(work())> result;
    thread_->call([&] { result = work(); }, patience);
    return result.value();
  }

 public:
  enum class Manner {
    prompt,
    silent,        ///< answers nothing until it is told to be prompt
    onlyTargets,   ///< says what it has, and nothing more until it is told to be prompt
    noTargets,     ///< refuses to say what it has
    leavesMidway,  ///< says what it has, delivers the first type and ends
  };

  explicit SelectionPeer(const std::string& display)
      : thread_(x11::XThread::connect(display)),
        atoms_(running(thread_).connection()),
        window_(xcb_generate_id(thread_->connection())) {
    const std::uint32_t values[] = {1, XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_create_window(thread_->connection(), XCB_COPY_FROM_PARENT, window_, thread_->screen()->root, 0, 0,
                      100, 100, 0, XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT,
                      XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK, values);
    xcb_map_window(thread_->connection(), window_);
    thread_->start([this](const xcb_generic_event_t& event) { handle(event); });
  }
  ~SelectionPeer() { thread_->stop(); }

  void own(const std::string& selection, std::vector<PasteboardItem> items, Manner manner = Manner::prompt) {
    onThread([&] {
      items_ = std::move(items);
      manner_ = manner;
      const auto time = thread_->serverTime(window_);
      xcb_set_selection_owner(thread_->connection(), window_, atoms_.atom(selection), time);
      return thread_->serverTime(window_);
    });
  }
  /// Large data go in pieces of this many bytes; 0 sends everything whole.
  void setPieceSize(std::size_t size) {
    onThread([&] { return pieceSize_ = size; });
  }
  /// Answers everything that was asked for so far.
  void becomePrompt() {
    onThread([&] {
      manner_ = Manner::prompt;
      for (const auto& request : unanswered_) answer(request);
      unanswered_.clear();
      return true;
    });
  }
  /// How often it was asked for something, by any target.
  std::size_t requests() {
    return onThread([&] { return requests_.size(); });
  }
  /// The names of what it was asked for.
  std::vector<std::string> requestedTargets() {
    return onThread([&] { return atoms_.names(requests_); });
  }

  /// What a selection's owner gives for the target, at most this many pieces of it; none when it refuses or
  /// takes 10 s. It is put into the property named.
  std::optional<std::string> read(const std::string& selection, const std::string& target, int pieces = -1,
                                  const std::string& property = "PEER_DATA") {
    onThread([&] {
      reading_.emplace().piecesLeft = pieces;
      return xcb_convert_selection(thread_->connection(), window_, atoms_.atom(selection),
                                   atoms_.atom(target), atoms_.atom(property), XCB_CURRENT_TIME);
    });
    const auto isOver = [&] {
      return onThread([&] { return reading_->isDone || reading_->piecesLeft == 0; });
    };
    if (!eventually(
            isOver, [] {}, patience))
      return std::nullopt;
    return onThread([&] { return reading_->data; });
  }
  /// The type under which the owner gave what was read last.
  std::string lastReadType() {
    return onThread([&] { return atoms_.name(reading_->type); });
  }
  /// What the owner says it offers.
  std::vector<std::string> targets(const std::string& selection) {
    const std::string data = read(selection, "TARGETS").value_or("");
    std::vector<xcb_atom_t> atoms(data.size() / 4);
    std::memcpy(atoms.data(), data.data(), atoms.size() * 4);
    return onThread([&] { return atoms_.names(atoms); });
  }
  /// Asks for several targets at once; the values that came, by target.
  std::map<std::string, std::string> readMultiple(const std::string& selection,
                                                  const std::vector<std::string>& targets) {
    onThread([&] {
      std::vector<xcb_atom_t> pairs;
      for (const auto& target : targets) {
        pairs.push_back(atoms_.atom(target));
        pairs.push_back(atoms_.atom("PEER_" + target));
      }
      return xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, window_,
                                 atoms_.atom("PEER_DATA"), atoms_.atom("ATOM_PAIR"), 32,
                                 static_cast<std::uint32_t>(pairs.size()), pairs.data());
    });
    const std::string pairs = read(selection, "MULTIPLE").value_or("");
    return onThread([&] {
      std::map<std::string, std::string> values;
      for (std::size_t i = 0; i < pairs.size() / 8; ++i) {
        xcb_atom_t property = XCB_ATOM_NONE;
        std::memcpy(&property, pairs.data() + i * 8 + 4, 4);
        if (property != XCB_ATOM_NONE) values[targets[i]] = bytesOf(takenProperty(property));
      }
      return values;
    });
  }
  void takeFocus() {
    onThread([&] {
      xcb_set_input_focus(thread_->connection(), XCB_INPUT_FOCUS_PARENT, window_, XCB_CURRENT_TIME);
      return thread_->serverTime(window_);
    });
  }

 private:
  struct Sending {
    xcb_window_t requestor;
    xcb_atom_t property;
    xcb_atom_t type;
    std::string rest;
    bool lastSent;
  };
  struct Reading {
    xcb_atom_t property = XCB_ATOM_NONE;
    bool isIncremental = false;
    bool isDone = false;
    int piecesLeft = -1;
    xcb_atom_t type = XCB_ATOM_NONE;
    std::optional<std::string> data;
  };

  void handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7f;
    if (type == XCB_SELECTION_REQUEST) {
      handleRequest(reinterpret_cast<const xcb_selection_request_event_t&>(event));
    } else if (type == XCB_SELECTION_NOTIFY) {
      handleNotify(reinterpret_cast<const xcb_selection_notify_event_t&>(event));
    } else if (type == XCB_PROPERTY_NOTIFY) {
      const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
      if (change.window != window_) {
        if (change.state == XCB_PROPERTY_DELETE) sendNextPiece(change.window, change.atom);
      } else if (reading_ && reading_->isIncremental && change.state == XCB_PROPERTY_NEW_VALUE &&
                 change.atom == reading_->property) {
        takeProperty(change.atom);
      }
    }
  }
  void handleRequest(const xcb_selection_request_event_t& request) {
    requests_.push_back(request.target);
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
  void answer(const xcb_selection_request_event_t& request) {
    if (request.target == atoms_.atom("TARGETS") && manner_ != Manner::noTargets) {
      sendTargets(request);
      notify(request, true);
    } else {
      notify(request, sendItem(request));
    }
  }
  bool sendItem(const xcb_selection_request_event_t& request) {
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
  void sendTargets(const xcb_selection_request_event_t& request) {
    std::vector<std::string> names = {"TIMESTAMP", "TARGETS", "MULTIPLE", "DELETE", "SAVE_TARGETS"};
    for (const auto& item : items_) names.push_back(item.type);
    const auto atoms = atoms_.atoms(names);
    xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, request.requestor, request.property,
                        XCB_ATOM_ATOM, 32, static_cast<std::uint32_t>(atoms.size()), atoms.data());
  }
  void notify(const xcb_selection_request_event_t& request, bool answered) {
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
  void sendNextPiece(xcb_window_t requestor, xcb_atom_t property) {
    for (auto& sending : sendings_) {
      if (sending.requestor != requestor || sending.property != property || sending.lastSent) continue;
      const std::string piece = sending.rest.substr(0, pieceSize_);
      sending.rest.erase(0, piece.size());
      sending.lastSent = piece.empty();
      xcb_change_property(thread_->connection(), XCB_PROP_MODE_REPLACE, requestor, property, sending.type, 8,
                          static_cast<std::uint32_t>(piece.size()), piece.data());
    }
  }
  void handleNotify(const xcb_selection_notify_event_t& event) {
    if (!reading_) return;
    if (event.property == XCB_ATOM_NONE) {
      reading_->isDone = true;
      return;
    }
    reading_->property = event.property;
    takeProperty(event.property);
  }
  void takeProperty(xcb_atom_t property) {
    if (reading_->piecesLeft == 0) return;
    const auto reply = takenProperty(property);
    if (!reply) return;
    if (reply->type == atoms_.atom("INCR")) {
      reading_->isIncremental = true;
      return;
    }
    const std::string piece = bytesOf(reply);
    reading_->type = reply->type;
    reading_->data = reading_->data.value_or("") + piece;
    reading_->isDone = !reading_->isIncremental || piece.empty();
    if (reading_->piecesLeft > 0) --reading_->piecesLeft;
  }
  x11::Owned<xcb_get_property_reply_t> takenProperty(xcb_atom_t property) {
    const auto c = thread_->connection();
    const auto asked = xcb_get_property(c, 1, window_, property, XCB_GET_PROPERTY_TYPE_ANY, 0, 0x1fffffff);
    return x11::Owned<xcb_get_property_reply_t>(xcb_get_property_reply(c, asked, nullptr));
  }

  std::unique_ptr<x11::XThread> thread_;
  x11::Atoms atoms_;
  xcb_window_t window_;
  Manner manner_ = Manner::prompt;
  std::size_t pieceSize_ = 0;
  std::vector<PasteboardItem> items_;
  std::vector<xcb_atom_t> requests_;
  std::vector<xcb_selection_request_event_t> unanswered_;
  std::vector<Sending> sendings_;
  std::optional<Reading> reading_;
};

}  // namespace tessarin::testing
