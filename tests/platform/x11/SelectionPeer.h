#pragma once

#include <map>

#include "platform/Pasteboard.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/XThread.h"

namespace tessarin::testing {

/// Another program with a clipboard of its own: it owns selections, in whatever manner the test asks for, and
/// reads those of others. It has a window on the screen, which can take the keyboard focus.
class SelectionPeer {
 public:
  enum class Manner {
    prompt,
    silent,        ///< answers nothing until it is told to be prompt
    onlyTargets,   ///< says what it has, and nothing more until it is told to be prompt
    noTargets,     ///< refuses to say what it has
    leavesMidway,  ///< says what it has, delivers the first type and ends
  };

  explicit SelectionPeer(const std::string& display);
  ~SelectionPeer();

  void own(const std::string& selection, std::vector<PasteboardItem> items, Manner manner = Manner::prompt);
  /// Large data go in pieces of this many bytes; 0 sends everything whole.
  void setPieceSize(std::size_t size);
  /// Answers everything that was asked for so far.
  void becomePrompt();
  /// How often it was asked for something, by any target.
  std::size_t requests();
  /// The names of what it was asked for.
  std::vector<std::string> requestedTargets();

  /// What a selection's owner gives for the target, at most this many pieces of it; none when it refuses or
  /// takes 10 s.
  std::optional<std::string> read(const std::string& selection, const std::string& target, int pieces = -1);
  /// The type under which the owner gave what was read last.
  std::string lastReadType();
  /// What the owner says it offers.
  std::vector<std::string> targets(const std::string& selection);
  /// Asks for several targets at once; the values that came, by target.
  std::map<std::string, std::string> readMultiple(const std::string& selection,
                                                  const std::vector<std::string>& targets);
  void takeFocus();

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

  /// Runs on the thread, and gives what the work gives.
  auto onThread(auto work);
  void handle(const xcb_generic_event_t& event);
  void handleRequest(const xcb_selection_request_event_t& request);
  void answer(const xcb_selection_request_event_t& request);
  bool sendItem(const xcb_selection_request_event_t& request);
  void sendTargets(const xcb_selection_request_event_t& request);
  void notify(const xcb_selection_request_event_t& request, bool answered);
  void sendNextPiece(xcb_window_t requestor, xcb_atom_t property);
  void handleNotify(const xcb_selection_notify_event_t& event);
  void takeProperty(xcb_atom_t property);
  x11::Owned<xcb_get_property_reply_t> takenProperty(xcb_atom_t property);

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
