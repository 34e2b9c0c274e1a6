#pragma once

#include <xcb/xcb.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <list>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/Pasteboard.h"
#include "platform/x11/SelectionOwner.h"
#include "platform/x11/SelectionSnapshot.h"
#include "platform/x11/SelectionTextRead.h"

namespace tessarin::x11 {

/// One selection as seen from the thread of the selections: reading it, owning it and counting its changes.
/// All of it on that thread, but for `changeCount`.
class SelectionChannel : public std::enable_shared_from_this<SelectionChannel> {
 public:
  /// See SelectionSnapshot::Sinks; called on the thread.
  struct SnapshotSinks {
    std::function<void(std::vector<PasteboardItem> delivered, bool isComplete)> ready;
    std::function<void(std::size_t position, PasteboardItem item)> late;
    std::function<void(std::size_t missing)> complete;
  };

  SelectionChannel(XThread& thread, Atoms& atoms, OutgoingTransfers& transfers, xcb_window_t window,
                   xcb_atom_t selection);

  /// `done` is told once, after `patience` at the latest.
  void readText(std::chrono::milliseconds patience, SelectionTextRead::Done done);
  void readAll(SnapshotSinks sinks);
  void writeText(const std::string& text, SelectionOwner::TextRead textRead);
  void write(const std::vector<PasteboardItem>& items);
  void handle(const xcb_generic_event_t& event);
  /// The selection was taken, or lost its owner.
  void handleOwnerChange(std::uint8_t kind, xcb_window_t owner, xcb_timestamp_t time);

  const SelectionOwner& owner() const { return owner_; }
  /// Whether what we own is marked as not to be remembered.
  bool isSecret();
  /// Any thread.
  std::int64_t changeCount() const { return changeCount_; }

 private:
  struct PropertyKind {
    xcb_atom_t type = XCB_ATOM_NONE;
    std::uint8_t format = 8;
  };

  SelectionSnapshot::Sinks itemSinks(SnapshotSinks sinks);
  PasteboardItem item(const Representation& representation);
  std::vector<PasteboardItem> items(const std::vector<Representation>& representations);
  Representation restored(const PasteboardItem& item, xcb_atom_t target);
  Representation bytes(const char* target, const std::string& data);
  void take(std::vector<Representation> contents, SelectionOwner::TextRead textRead);

  XThread& thread_;
  Atoms& atoms_;
  xcb_window_t window_;
  xcb_atom_t selection_;
  SelectionOwner owner_;
  std::list<std::shared_ptr<SelectionSnapshot>> snapshots_;
  std::list<std::shared_ptr<SelectionTextRead>> textReads_;
  /// How the properties of the last snapshot were typed, so that they are put back alike.
  std::unordered_map<std::string, PropertyKind> kinds_;
  std::atomic<std::int64_t> changeCount_ = 0;
};

}  // namespace tessarin::x11
