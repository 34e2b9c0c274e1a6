#pragma once

#include <utility>

#include "platform/KeyPoster.h"
#include "platform/MainQueue.h"

namespace tessarin::testing {

/// Records every press and when it was posted.
class FakeKeyPoster final : public KeyPoster {
 public:
  struct Posted {
    KeyPress press;
    std::chrono::milliseconds at{0};  ///< since the poster was made
    bool operator==(const Posted&) const = default;
  };

  explicit FakeKeyPoster(MainQueue& queue) : queue_(queue), start_(queue.now()) {}

  void post(const std::vector<KeyPress>& presses, std::function<void()> made) override {
    const auto at = std::chrono::duration_cast<std::chrono::milliseconds>(queue_.now() - start_);
    for (const KeyPress& press : presses) posted.push_back({press, at});
    takes == std::chrono::milliseconds(0) ? made() : queue_.after(takes, std::move(made));
  }

  std::vector<Posted> posted;
  /// From a post until its presses are made.
  std::chrono::milliseconds takes{0};

 private:
  MainQueue& queue_;
  std::chrono::steady_clock::time_point start_;
};

}  // namespace tessarin::testing
