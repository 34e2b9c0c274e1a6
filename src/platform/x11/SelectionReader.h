#pragma once

#include <xcb/xcb.h>

#include <functional>
#include <optional>
#include <string>
#include <unordered_map>

#include "platform/x11/Representation.h"

namespace tessarin::x11 {

class Atoms;
class XThread;

/// Asks the owner of a selection for representations and takes them in, in whatever order and in however many
/// pieces they come. Each request has a property of its own, so any number may be under way.
class SelectionReader {
 public:
  /// Without a representation: the owner refused.
  using Received = std::function<void(xcb_atom_t target, std::optional<Representation>)>;

  SelectionReader(XThread& thread, Atoms& atoms, xcb_atom_t selection, Received received);
  ~SelectionReader();
  SelectionReader(const SelectionReader&) = delete;
  SelectionReader& operator=(const SelectionReader&) = delete;

  /// `received` is told of each target once, never before this call has returned.
  void request(xcb_atom_t target);
  /// How many requests have not been answered to the end.
  std::size_t pending() const { return requests_.size(); }
  void handle(const xcb_generic_event_t& event);

 private:
  struct Request {
    xcb_atom_t target = XCB_ATOM_NONE;
    bool isIncremental = false;
    Representation representation;
    std::string data;
  };

  void handleAnswer(const xcb_selection_notify_event_t& event);
  void handleChange(const xcb_property_notify_event_t& event);
  void readProperty(xcb_atom_t property);
  void take(xcb_atom_t property, const xcb_get_property_reply_t& reply);
  void finish(xcb_atom_t property, bool delivered);

  XThread& thread_;
  Atoms& atoms_;
  xcb_atom_t selection_;
  xcb_atom_t incremental_;
  Received received_;
  xcb_window_t window_;
  int count_ = 0;
  std::unordered_map<xcb_atom_t, Request> requests_;  // by property
};

}  // namespace tessarin::x11
