#pragma once

#include <memory>

#include "platform/Pasteboard.h"

namespace tessarin::none {

/// The pasteboard of a session whose clipboard cannot be reached: always empty, and nothing stays on it.
class NoPasteboard final : public Pasteboard {
 public:
  std::optional<std::string> string() override { return std::nullopt; }
  void snapshot(SnapshotReady ready) override {
    ready(std::make_shared<PasteboardSnapshot>(PasteboardSnapshot{{}, true}));
  }
  void writeText(const std::string&) override {}
  void write(const std::vector<PasteboardItem>&) override {}
  std::int64_t changeCount() const override { return 0; }
  bool hasBeenRead() const override { return false; }
  void onRead(std::function<void()>) override {}
};

}  // namespace tessarin::none
