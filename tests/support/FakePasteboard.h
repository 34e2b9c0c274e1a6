#pragma once

#include <utility>

#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"

namespace tessarin::testing {

/// A pasteboard whose owner takes as long as the test says, and that applications read when the test says.
class FakePasteboard final : public Pasteboard {
 public:
  /// The queue must outlive the pasteboard.
  explicit FakePasteboard(MainQueue& queue) : queue_(queue) {}

  std::optional<std::string> string() override {
    ++stringReads;
    for (const PasteboardItem& item : contents_) {
      if (item.type == "UTF8_STRING") return item.data;
    }
    return std::nullopt;
  }
  void snapshot(SnapshotReady ready) override {
    ++snapshots;
    auto taken = std::make_shared<PasteboardSnapshot>();
    taken->items = contents_;
    queue_.after(completeAfter, [taken, late = lateItems] {
      taken->items.insert(taken->items.end(), late.begin(), late.end());
      taken->isComplete = true;
    });
    queue_.after(readyAfter, [taken, ready = std::move(ready)] { ready(taken); });
  }
  void writeText(const std::string& text) override {
    writtenTexts.push_back(text);
    if (isHeldUp) {
      heldWrite = text;
      return;
    }
    change({{"UTF8_STRING", text}}, true);
  }
  void write(const std::vector<PasteboardItem>& items) override { change(items, false); }
  bool isWriteDone() const override { return !heldWrite; }
  std::int64_t changeCount() const override { return changeCount_; }
  bool hasBeenRead() const override { return hasBeenRead_; }
  ReadManner readManner() const override { return manner; }
  std::int64_t requestCount() const override { return requests; }
  std::int64_t textRequestCount() const override { return textRequests; }
  void onRead(std::function<void()> callback) override { onRead_ = std::move(callback); }

  /// Another program copies.
  void copyElsewhere(std::vector<PasteboardItem> items) { change(std::move(items), false); }
  void copyElsewhere(const std::string& text) { copyElsewhere({{"UTF8_STRING", text}}); }
  /// The application that was sent the chord reads our text to its end. What it got, or nothing when the text
  /// is no longer ours.
  std::optional<std::string> readByApplication() {
    if (!isOurText_) return std::nullopt;
    const std::string text = contents_.front().data;
    hasBeenRead_ = true;
    if (const auto callback = onRead_) callback();
    return text;
  }

  const std::vector<PasteboardItem>& contents() const { return contents_; }
  bool isOurText() const { return isOurText_; }

  /// How the owner answers a snapshot: the items listed first come at once, the others `late`.
  std::chrono::milliseconds readyAfter{0};
  std::chrono::milliseconds completeAfter{0};
  std::vector<PasteboardItem> lateItems;

  /// While the server is held up, texts are not written but kept here; `carryOutHeldWrite` ends that.
  bool isHeldUp = false;
  std::optional<std::string> heldWrite;
  void carryOutHeldWrite() {
    isHeldUp = false;
    if (const auto text = std::exchange(heldWrite, std::nullopt)) change({{"UTF8_STRING", *text}}, true);
  }

  ReadManner manner = ReadManner::plain;  ///< of the application that reads our text
  std::int64_t requests = 0;
  std::int64_t textRequests = 0;

  int snapshots = 0;
  int stringReads = 0;
  std::vector<std::string> writtenTexts;

 private:
  void change(std::vector<PasteboardItem> items, bool isOurText) {
    contents_ = std::move(items);
    isOurText_ = isOurText;
    hasBeenRead_ = false;
    ++changeCount_;
  }

  MainQueue& queue_;
  std::vector<PasteboardItem> contents_;
  std::int64_t changeCount_ = 1;
  bool isOurText_ = false;
  bool hasBeenRead_ = false;
  std::function<void()> onRead_;
};

}  // namespace tessarin::testing
