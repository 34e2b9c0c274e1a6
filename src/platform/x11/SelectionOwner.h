#pragma once

#include <xcb/xcb.h>

#include <atomic>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/Pasteboard.h"
#include "platform/x11/Representation.h"

namespace tessarin::x11 {

class Atoms;
class OutgoingTransfers;
class XThread;

/// Our side of a selection that we own: takes it, answers everybody who asks for its contents, and notices
/// when the program with the keyboard focus has read text to the end.
class SelectionOwner {
 public:
  using TextRead = std::function<void()>;

  SelectionOwner(XThread& thread, Atoms& atoms, OutgoingTransfers& transfers, xcb_window_t window,
                 xcb_atom_t selection);

  /// Takes the selection. `textRead` may be empty; it is told when the program that has the focus now, or
  /// when it asks, has read a text representation. False when another program would not let go.
  bool take(std::vector<Representation> contents, TextRead textRead);
  /// Leaves the selection without an owner, whoever owned it.
  void clear();
  bool isOwner() const { return isOwner_; }
  xcb_atom_t selection() const { return selection_; }
  const std::vector<Representation>& contents() const { return contents_; }
  /// The server's time of the last `take` or `clear`.
  xcb_timestamp_t time() const { return time_; }
  /// How text of what was taken last has been read. Any thread.
  ReadManner readManner() const { return readManner_; }
  /// How often what was taken last has been asked for. Any thread.
  std::int64_t requestCount() const { return requestCount_; }
  std::int64_t textRequestCount() const { return textRequestCount_; }

  /// Requests for, and the loss of, this selection.
  void handle(const xcb_generic_event_t& event);

 private:
  void handleRequest(const xcb_selection_request_event_t& request);
  bool isOwnerAtServer() const;
  void handleLoss();
  bool answer(xcb_window_t requestor, xcb_atom_t target, xcb_atom_t property);
  bool answerMultiple(xcb_window_t requestor, xcb_atom_t property);
  std::optional<Representation> representation(xcb_atom_t target) const;
  Representation targetList() const;
  void noteRequest(xcb_atom_t target, xcb_atom_t property);
  TextRead readObserver(xcb_window_t requestor, xcb_atom_t target);

  XThread& thread_;
  Atoms& atoms_;
  OutgoingTransfers& transfers_;
  xcb_window_t window_;
  xcb_atom_t selection_;
  xcb_atom_t targets_;
  xcb_atom_t timestamp_;
  xcb_atom_t multiple_;
  xcb_atom_t pair_;
  xcb_atom_t chromium_;
  std::atomic<ReadManner> readManner_ = ReadManner::plain;
  std::atomic<std::int64_t> requestCount_ = 0;
  std::atomic<std::int64_t> textRequestCount_ = 0;
  std::int64_t chromiumRequestCount_ = 0;
  std::int64_t chromiumReadAt_ = 0;  ///< the count when it asked for text last
  bool isOwner_ = false;
  xcb_timestamp_t time_ = XCB_CURRENT_TIME;
  std::vector<Representation> contents_;
  TextRead textRead_;
  std::uint32_t expectedClient_ = 0;
};

/// The window that an owner needs: never shown, and told of changed properties.
xcb_window_t createSelectionWindow(xcb_connection_t* connection, const xcb_screen_t& screen);
/// A representation whose data are 32-bit units.
Representation unitsRepresentation(xcb_atom_t target, xcb_atom_t type,
                                   const std::vector<std::uint32_t>& units);

}  // namespace tessarin::x11
