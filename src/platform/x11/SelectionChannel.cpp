#include "platform/x11/SelectionChannel.h"

#include <xcb/xfixes.h>

#include <algorithm>
#include <utility>

#include "base/Log.h"
#include "platform/x11/Atoms.h"
#include "platform/x11/SelectionTargets.h"
#include "platform/x11/XThread.h"

namespace tessarin::x11 {
namespace {

/// How long a snapshot holds up those who want to write, and how long it goes on for the rest.
constexpr std::chrono::milliseconds giveWayAfter{200};
constexpr std::chrono::milliseconds finishAfter{1000};

}  // namespace

SelectionChannel::SelectionChannel(XThread& thread, Atoms& atoms, OutgoingTransfers& transfers,
                                   xcb_window_t window, xcb_atom_t selection)
    : thread_(thread),
      atoms_(atoms),
      window_(window),
      selection_(selection),
      owner_(thread, atoms, transfers, window, selection) {}

void SelectionChannel::readText(std::chrono::milliseconds patience, SelectionTextRead::Done done) {
  if (owner_.isOwner()) {
    const auto& contents = owner_.contents();
    for (const std::string& name : textTargets()) {
      const auto target = atoms_.atom(name);
      const auto found = std::find_if(contents.begin(), contents.end(),
                                      [&](const Representation& r) { return r.target == target; });
      if (found != contents.end()) return done(decodedText(*found, atoms_.atom("STRING")));
    }
    return done(std::nullopt);
  }
  auto read = std::make_shared<SelectionTextRead>(thread_, atoms_, selection_, std::move(done));
  textReads_.push_back(read);
  thread_.after(patience, [weak = weak_from_this(), read = std::weak_ptr(read)] {
    const auto channel = weak.lock();
    const auto pending = read.lock();
    if (!channel || !pending) return;
    pending->giveUp();
    channel->textReads_.remove(pending);
  });
}

void SelectionChannel::readAll(SnapshotSinks sinks) {
  if (owner_.isOwner()) {
    sinks.ready(items(owner_.contents()), true);
    sinks.complete(0);
    return;
  }
  kinds_.clear();
  auto snapshot =
      std::make_shared<SelectionSnapshot>(thread_, atoms_, selection_, itemSinks(std::move(sinks)));
  snapshots_.push_back(snapshot);
  const std::weak_ptr<SelectionSnapshot> pending = snapshot;
  thread_.after(giveWayAfter, [pending] {
    if (const auto current = pending.lock()) current->giveWay();
  });
  thread_.after(finishAfter, [weak = weak_from_this(), pending] {
    const auto channel = weak.lock();
    const auto current = pending.lock();
    if (!channel || !current) return;
    current->finish();
    channel->snapshots_.remove(current);
  });
}

SelectionSnapshot::Sinks SelectionChannel::itemSinks(SnapshotSinks sinks) {
  // The snapshots belong to this channel.
  return {[this, ready = std::move(sinks.ready)](const std::vector<Representation>& delivered,
                                                 bool isComplete) { ready(items(delivered), isComplete); },
          [this, late = std::move(sinks.late)](std::size_t position, const Representation& representation) {
            late(position, item(representation));
          },
          std::move(sinks.complete)};
}

void SelectionChannel::writeText(const std::string& text, SelectionOwner::TextRead textRead) {
  std::vector<Representation> contents = {bytes("UTF8_STRING", text), bytes("text/plain;charset=utf-8", text),
                                          bytes("text/plain", text), bytes("TEXT", text)};
  contents.back().type = atoms_.atom("UTF8_STRING");
  if (const auto latin1 = latin1Text(text)) contents.push_back(bytes("STRING", *latin1));
  contents.push_back(bytes(secretMark.data(), std::string(secretValue)));
  take(std::move(contents), std::move(textRead));
}

void SelectionChannel::write(const std::vector<PasteboardItem>& items) {
  if (items.empty()) {
    owner_.clear();
    ++changeCount_;
    return;
  }
  std::vector<std::string> names;
  names.reserve(items.size());
  for (const auto& item : items) names.push_back(item.type);
  const auto targets = atoms_.atoms(names);
  std::vector<Representation> contents;
  contents.reserve(items.size());
  for (std::size_t i = 0; i < items.size(); ++i) contents.push_back(restored(items[i], targets[i]));
  take(std::move(contents), nullptr);
}

void SelectionChannel::take(std::vector<Representation> contents, SelectionOwner::TextRead textRead) {
  if (!owner_.take(std::move(contents), std::move(textRead))) {
    log("Pasteboard", "the selection could not be taken");
  }
  ++changeCount_;
}

void SelectionChannel::handle(const xcb_generic_event_t& event) {
  owner_.handle(event);
  // Copies: what is told of an answer may start another read.
  for (const auto& snapshot : std::list(snapshots_)) snapshot->handle(event);
  for (const auto& read : std::list(textReads_)) read->handle(event);
  snapshots_.remove_if([](const auto& snapshot) { return snapshot->isFinished(); });
  textReads_.remove_if([](const auto& read) { return read->isFinished(); });
}

void SelectionChannel::handleOwnerChange(std::uint8_t kind, xcb_window_t owner, xcb_timestamp_t time) {
  const bool isOurs =
      kind == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER &&
      (owner == window_ || (owner == XCB_WINDOW_NONE && time == owner_.time() && !owner_.isOwner()));
  if (isOurs) return;  // counted when it was done
  ++changeCount_;
  if (kind == XCB_XFIXES_SELECTION_EVENT_SET_SELECTION_OWNER) return;
  // The owner has gone; all that it answered has come before this event.
  for (const auto& snapshot : std::list(snapshots_)) snapshot->finish();
  for (const auto& read : std::list(textReads_)) read->giveUp();
  snapshots_.clear();
  textReads_.clear();
}

bool SelectionChannel::isSecret() {
  const xcb_atom_t mark = atoms_.atom(std::string(secretMark));
  return std::any_of(owner_.contents().begin(), owner_.contents().end(),
                     [&](const Representation& r) { return r.target == mark; });
}

PasteboardItem SelectionChannel::item(const Representation& representation) {
  PasteboardItem result{atoms_.name(representation.target), *representation.data};
  kinds_[result.type] = {representation.type, representation.format};
  return result;
}

std::vector<PasteboardItem> SelectionChannel::items(const std::vector<Representation>& representations) {
  std::vector<PasteboardItem> result;
  result.reserve(representations.size());
  for (const auto& representation : representations) result.push_back(item(representation));
  return result;
}

Representation SelectionChannel::restored(const PasteboardItem& item, xcb_atom_t target) {
  Representation result = bytes(item.type.c_str(), item.data);
  result.target = result.type = target;
  const auto known = kinds_.find(item.type);
  const bool fits = known != kinds_.end() && item.data.size() % (known->second.format / 8U) == 0;
  if (fits) {
    result.type = known->second.type;
    result.format = known->second.format;
  }
  return result;
}

Representation SelectionChannel::bytes(const char* target, const std::string& data) {
  const xcb_atom_t atom = atoms_.atom(target);
  return {atom, atom, 8, std::make_shared<const std::string>(data)};
}

}  // namespace tessarin::x11
