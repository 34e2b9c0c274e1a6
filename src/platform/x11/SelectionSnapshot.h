#pragma once

#include <xcb/xcb.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "platform/x11/Representation.h"
#include "platform/x11/SelectionReader.h"

namespace tessarin::x11 {

/// Reads everything that another program offers under a selection. Its owner calls `giveWay` when the
/// selection may have to change hands and `finish` when it waits no longer.
class SelectionSnapshot {
 public:
  struct Sinks {
    /// Once: the selection may change hands now. What was asked for by then is still answered by its owner.
    std::function<void(std::vector<Representation> delivered, bool isComplete)> ready;
    /// After `ready`: one more came, to be inserted at this position.
    std::function<void(std::size_t position, Representation representation)> late;
    /// Once, after `ready`: nothing more will come. `missing`: how many were asked for in vain.
    std::function<void(std::size_t missing)> complete;
  };

  SelectionSnapshot(XThread& thread, Atoms& atoms, xcb_atom_t selection, Sinks sinks);

  void handle(const xcb_generic_event_t& event) { reader_.handle(event); }
  /// Makes ready with what is there; asks blindly for the common types if the owner has not yet said what it
  /// has.
  void giveWay();
  void finish();
  bool isFinished() const { return isFinished_; }

 private:
  struct Slot {
    xcb_atom_t target = XCB_ATOM_NONE;
    bool isAnswered = false;
    std::optional<Representation> representation;
  };

  void receive(xcb_atom_t target, std::optional<Representation> representation);
  void receiveTargets(const std::optional<Representation>& list);
  void receiveSlot(xcb_atom_t target, std::optional<Representation> representation);
  void requestAll(const std::vector<xcb_atom_t>& targets);
  void requestCommonTargets();
  void makeReady();

  Atoms& atoms_;
  xcb_atom_t listTarget_;
  Sinks sinks_;
  SelectionReader reader_;
  std::vector<Slot> slots_;
  bool hasRequested_ = false;
  bool isReady_ = false;
  bool isFinished_ = false;
};

/// The numbers in a list of 32-bit units.
std::vector<xcb_atom_t> atomList(const Representation& list);

}  // namespace tessarin::x11
