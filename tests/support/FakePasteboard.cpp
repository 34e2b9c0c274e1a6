#include "support/FakePasteboard.h"

#include <utility>

namespace tessarin::testing {

std::optional<std::string> FakePasteboard::string() {
  ++stringReads;
  for (const PasteboardItem& item : contents_) {
    if (item.type == "UTF8_STRING") return item.data;
  }
  return std::nullopt;
}

void FakePasteboard::snapshot(SnapshotReady ready) {
  ++snapshots;
  auto taken = std::make_shared<PasteboardSnapshot>();
  taken->items = contents_;
  queue_.after(completeAfter, [taken, late = lateItems] {
    taken->items.insert(taken->items.end(), late.begin(), late.end());
    taken->isComplete = true;
  });
  queue_.after(readyAfter, [taken, ready = std::move(ready)] { ready(taken); });
}

void FakePasteboard::writeText(const std::string& text) {
  writtenTexts.push_back(text);
  if (isHeldUp) {
    heldWrite = text;
    return;
  }
  change({{"UTF8_STRING", text}}, true);
}

void FakePasteboard::carryOutHeldWrite() {
  isHeldUp = false;
  if (const auto text = std::exchange(heldWrite, std::nullopt)) change({{"UTF8_STRING", *text}}, true);
}

std::optional<std::string> FakePasteboard::readByApplication() {
  if (!isOurText_) return std::nullopt;
  const std::string text = contents_.front().data;
  hasBeenRead_ = true;
  if (const auto callback = onRead_) callback();
  return text;
}

void FakePasteboard::change(std::vector<PasteboardItem> items, bool isOurText) {
  contents_ = std::move(items);
  isOurText_ = isOurText;
  hasBeenRead_ = false;
  ++changeCount_;
}

}  // namespace tessarin::testing
