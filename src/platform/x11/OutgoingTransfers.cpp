#include "platform/x11/OutgoingTransfers.h"

#include <algorithm>
#include <utility>

namespace tessarin::x11 {
namespace {

/// A reader that has not come for its next piece for so long is not coming back.
constexpr std::chrono::seconds patience{30};
/// Large enough for few round trips, small enough not to hold up other programs' requests.
constexpr std::size_t largestPiece = 256UL * 1024;

}  // namespace

OutgoingTransfers::OutgoingTransfers(xcb_connection_t* connection, xcb_atom_t incremental)
    : connection_(connection), incremental_(incremental) {
  constexpr std::size_t requestHeader = 64;
  const std::size_t largestRequest = std::size_t{xcb_get_maximum_request_length(connection)} * 4;
  pieceSize_ = std::min(largestPiece, (largestRequest - requestHeader) / 4 * 4);
}

void OutgoingTransfers::send(xcb_window_t requestor, xcb_atom_t property,
                             const Representation& representation, ReadToEnd readToEnd) {
  dropStalled();
  std::erase_if(transfers_,
                [&](const Transfer& t) { return t.requestor == requestor && t.property == property; });
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection_, requestor, XCB_CW_EVENT_MASK, &events);
  Transfer& transfer = transfers_.emplace_back();
  transfer.requestor = requestor;
  transfer.property = property;
  transfer.representation = representation;
  transfer.readToEnd = std::move(readToEnd);
  transfer.progress = std::chrono::steady_clock::now();
  transfer.isIncremental = representation.data->size() > pieceSize_;
  if (transfer.isIncremental) {
    announce(transfer);
  } else {
    sendPiece(transfer);
  }
}

void OutgoingTransfers::handle(const xcb_generic_event_t& event) {
  const int type = event.response_type & 0x7f;
  if (type == XCB_PROPERTY_NOTIFY) {
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    if (change.state == XCB_PROPERTY_DELETE) handleDeleted(change.window, change.atom);
  } else if (type == XCB_DESTROY_NOTIFY) {
    handleDestroyed(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
  }
}

void OutgoingTransfers::handleDeleted(xcb_window_t requestor, xcb_atom_t property) {
  const auto transfer = std::find_if(transfers_.begin(), transfers_.end(), [&](const Transfer& t) {
    return t.requestor == requestor && t.property == property;
  });
  if (transfer == transfers_.end()) return;
  if (!isAllTaken(*transfer)) {
    sendPiece(*transfer);
    return;
  }
  if (transfer->isIncremental) sendPiece(*transfer);  // the empty piece, which says that it was the last
  const ReadToEnd readToEnd = std::move(transfer->readToEnd);
  forget(transfer);
  if (readToEnd) readToEnd();
}

void OutgoingTransfers::handleDestroyed(xcb_window_t requestor) {
  for (auto transfer = transfers_.begin(); transfer != transfers_.end();) {
    const auto current = transfer++;
    if (current->requestor != requestor) continue;
    // Some readers never delete the property: what was handed over whole is theirs all the same.
    const bool wasHandedOver = !current->isIncremental;
    const ReadToEnd readToEnd = std::move(current->readToEnd);
    transfers_.erase(current);
    if (wasHandedOver && readToEnd) readToEnd();
  }
}

bool OutgoingTransfers::isAllTaken(const Transfer& transfer) const {
  return transfer.sent >= transfer.representation.data->size();
}

void OutgoingTransfers::announce(const Transfer& transfer) {
  const auto size = static_cast<std::uint32_t>(transfer.representation.data->size());
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, transfer.requestor, transfer.property, incremental_,
                      32, 1, &size);
}

void OutgoingTransfers::sendPiece(Transfer& transfer) {
  const auto& [target, type, format, data] = transfer.representation;
  const std::size_t size = std::min(pieceSize_, data->size() - transfer.sent);
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, transfer.requestor, transfer.property, type, format,
                      static_cast<std::uint32_t>(size / (format / 8U)), data->data() + transfer.sent);
  transfer.sent += size;
  transfer.progress = std::chrono::steady_clock::now();
}

void OutgoingTransfers::dropStalled() {
  const auto oldest = std::chrono::steady_clock::now() - patience;
  for (auto transfer = transfers_.begin(); transfer != transfers_.end();) {
    const auto current = transfer++;
    if (current->progress < oldest) forget(current);
  }
}

void OutgoingTransfers::forget(std::list<Transfer>::iterator transfer) {
  const xcb_window_t requestor = transfer->requestor;
  transfers_.erase(transfer);
  const bool isStillWatched = std::any_of(transfers_.begin(), transfers_.end(),
                                          [&](const Transfer& t) { return t.requestor == requestor; });
  if (isStillWatched) return;
  const std::uint32_t noEvents = XCB_EVENT_MASK_NO_EVENT;
  xcb_change_window_attributes(connection_, requestor, XCB_CW_EVENT_MASK, &noEvents);
}

}  // namespace tessarin::x11
