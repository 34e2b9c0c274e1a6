#pragma once

#include <QClipboard>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/Pasteboard.h"

namespace tessarin::ui {

/// A pasteboard that takes the text which was copied from a window of ours straight from the toolkit. Another
/// connection would wait for the main thread to hand it out, and the main thread for that connection.
class OwnSelection final : public Pasteboard {
 public:
  /// `pasteboard` outlives this.
  OwnSelection(Pasteboard& pasteboard, QClipboard::Mode mode) : pasteboard_(pasteboard), mode_(mode) {}

  std::optional<std::string> string() override;
  void snapshot(SnapshotReady ready) override { pasteboard_.snapshot(std::move(ready)); }
  void writeText(const std::string& text) override { pasteboard_.writeText(text); }
  void write(const std::vector<PasteboardItem>& items) override { pasteboard_.write(items); }
  bool isWriteDone() const override { return pasteboard_.isWriteDone(); }
  std::int64_t changeCount() const override { return pasteboard_.changeCount(); }
  bool hasBeenRead() const override { return pasteboard_.hasBeenRead(); }
  ReadManner readManner() const override { return pasteboard_.readManner(); }
  std::int64_t requestCount() const override { return pasteboard_.requestCount(); }
  std::int64_t textRequestCount() const override { return pasteboard_.textRequestCount(); }
  void onRead(std::function<void()> callback) override { pasteboard_.onRead(std::move(callback)); }

 private:
  Pasteboard& pasteboard_;
  const QClipboard::Mode mode_;
};

}  // namespace tessarin::ui
