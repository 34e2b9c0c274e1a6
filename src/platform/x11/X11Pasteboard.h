#pragma once

#include <atomic>
#include <memory>

#include "platform/Pasteboard.h"

namespace tessarin {
class MainQueue;
}

namespace tessarin::x11 {

class SelectionChannel;
class XThread;

/// A selection as the main thread sees it: hands the work to the thread of the selections and brings the
/// answers back. Its owner, X11Selections, outlives nothing that it refers to.
class X11Pasteboard final : public Pasteboard {
 public:
  X11Pasteboard(MainQueue& queue, XThread& thread, std::shared_ptr<SelectionChannel> channel);
  ~X11Pasteboard() override;

  std::optional<std::string> string() override;
  void snapshot(SnapshotReady ready) override;
  /// Returns when the selection has been taken, so that a paste chord posted afterwards finds the text, or
  /// after 200 ms.
  void writeText(const std::string& text) override;
  void write(const std::vector<PasteboardItem>& items) override;
  bool isWriteDone() const override { return writesUnderWay_->load() == 0; }
  std::int64_t changeCount() const override;
  bool hasBeenRead() const override;
  ReadManner readManner() const override;
  std::int64_t requestCount() const override;
  std::int64_t textRequestCount() const override;
  void onRead(std::function<void()> callback) override;

 private:
  struct ReadState;

  void runWrite(std::function<void(SelectionChannel&)> work);
  std::function<void()> readObserver();

  MainQueue& queue_;
  XThread& thread_;
  std::shared_ptr<SelectionChannel> channel_;
  std::shared_ptr<ReadState> read_;
  std::shared_ptr<std::atomic<int>> writesUnderWay_ = std::make_shared<std::atomic<int>>(0);
};

}  // namespace tessarin::x11
