#pragma once

#include <xcb/xcb.h>

#include <chrono>
#include <cstddef>
#include <functional>
#include <list>

#include "platform/x11/Representation.h"

namespace tessarin::x11 {

/// Carries representations to the windows that asked for them, large ones piece by piece, and notices when
/// the reader has taken the last of it.
class OutgoingTransfers {
 public:
  using ReadToEnd = std::function<void()>;

  OutgoingTransfers(xcb_connection_t* connection, xcb_atom_t incremental);

  /// Puts the data, or the announcement of its pieces, into the requestor's property. The caller then tells
  /// the requestor. `readToEnd` may be empty.
  void send(xcb_window_t requestor, xcb_atom_t property, const Representation& representation,
            ReadToEnd readToEnd);
  void handle(const xcb_generic_event_t& event);

 private:
  struct Transfer {
    xcb_window_t requestor = XCB_WINDOW_NONE;
    xcb_atom_t property = XCB_ATOM_NONE;
    Representation representation;
    ReadToEnd readToEnd;
    std::size_t sent = 0;
    bool isIncremental = false;
    std::chrono::steady_clock::time_point progress;
  };

  void handleDeleted(xcb_window_t requestor, xcb_atom_t property);
  void handleDestroyed(xcb_window_t requestor);
  bool isAllTaken(const Transfer& transfer) const;
  void announce(const Transfer& transfer);
  void sendPiece(Transfer& transfer);
  void dropStalled();
  void forget(std::list<Transfer>::iterator transfer);

  xcb_connection_t* connection_;
  xcb_atom_t incremental_;
  std::size_t pieceSize_;
  std::list<Transfer> transfers_;
};

}  // namespace tessarin::x11
