#include "platform/x11/SelectionSnapshot.h"

#include <algorithm>
#include <cstring>
#include <unordered_set>
#include <utility>

#include "platform/x11/Atoms.h"
#include "platform/x11/SelectionTargets.h"

namespace tessarin::x11 {

std::vector<xcb_atom_t> atomList(const Representation& list) {
  if (list.format != 32 || !list.data) return {};
  std::vector<xcb_atom_t> atoms(list.data->size() / sizeof(xcb_atom_t));
  if (!atoms.empty()) std::memcpy(atoms.data(), list.data->data(), atoms.size() * sizeof(xcb_atom_t));
  return atoms;
}

SelectionSnapshot::SelectionSnapshot(XThread& thread, Atoms& atoms, xcb_atom_t selection, Sinks sinks)
    : atoms_(atoms),
      listTarget_(atoms.atom("TARGETS")),
      sinks_(std::move(sinks)),
      reader_(thread, atoms, selection,
              [this](xcb_atom_t target, std::optional<Representation> representation) {
                receive(target, std::move(representation));
              }) {
  reader_.request(listTarget_);
}

void SelectionSnapshot::giveWay() {
  if (isReady_ || isFinished_) return;
  requestCommonTargets();
  makeReady();
}

void SelectionSnapshot::finish() {
  if (isFinished_) return;
  isFinished_ = true;
  if (!isReady_) makeReady();
  const auto missing =
      std::count_if(slots_.begin(), slots_.end(), [](const Slot& slot) { return !slot.isAnswered; });
  sinks_.complete(static_cast<std::size_t>(missing));
}

void SelectionSnapshot::receive(xcb_atom_t target, std::optional<Representation> representation) {
  if (isFinished_) return;
  if (target == listTarget_) {
    receiveTargets(representation);
  } else {
    receiveSlot(target, std::move(representation));
  }
  const bool isAllAnswered =
      std::all_of(slots_.begin(), slots_.end(), [](const Slot& slot) { return slot.isAnswered; });
  if (hasRequested_ && isAllAnswered) finish();
}

void SelectionSnapshot::receiveTargets(const std::optional<Representation>& list) {
  // What is asked for after the selection has changed hands would come from its new owner.
  if (isReady_) return;
  const auto offered = list ? atomList(*list) : std::vector<xcb_atom_t>();
  if (offered.empty()) {
    requestCommonTargets();
    return;
  }
  const auto names = atoms_.names(offered);
  std::vector<xcb_atom_t> targets;
  std::unordered_set<xcb_atom_t> seen;
  for (std::size_t i = 0; i < offered.size(); ++i) {
    if (isContentTarget(names[i]) && seen.insert(offered[i]).second) targets.push_back(offered[i]);
  }
  requestAll(targets);
}

void SelectionSnapshot::receiveSlot(xcb_atom_t target, std::optional<Representation> representation) {
  std::size_t position = 0;
  for (Slot& slot : slots_) {
    if (slot.target != target) {
      if (slot.representation) ++position;
      continue;
    }
    slot.isAnswered = true;
    slot.representation = std::move(representation);
    if (isReady_ && slot.representation) sinks_.late(position, *slot.representation);
    return;
  }
}

void SelectionSnapshot::requestAll(const std::vector<xcb_atom_t>& targets) {
  hasRequested_ = true;
  for (const xcb_atom_t target : targets) {
    slots_.push_back({target, false, std::nullopt});
    reader_.request(target);
  }
}

void SelectionSnapshot::requestCommonTargets() {
  if (!hasRequested_) requestAll(atoms_.atoms(commonTargets()));
}

void SelectionSnapshot::makeReady() {
  isReady_ = true;
  std::vector<Representation> delivered;
  for (const Slot& slot : slots_) {
    if (slot.representation) delivered.push_back(*slot.representation);
  }
  sinks_.ready(std::move(delivered), isFinished_);
}

}  // namespace tessarin::x11
