#pragma once

#include <functional>
#include <utility>

namespace tessarin {

/// What was registered stays registered exactly as long as this token lives.
class [[nodiscard]] Subscription {
 public:
  Subscription() = default;
  explicit Subscription(std::function<void()> cancel) : cancel_(std::move(cancel)) {}
  Subscription(Subscription&& other) noexcept : cancel_(std::exchange(other.cancel_, nullptr)) {}
  Subscription& operator=(Subscription&& other) noexcept {
    if (this != &other) {
      reset();
      cancel_ = std::exchange(other.cancel_, nullptr);
    }
    return *this;
  }
  ~Subscription() { reset(); }

  void reset() {
    if (auto cancel = std::exchange(cancel_, nullptr)) cancel();
  }
  explicit operator bool() const { return static_cast<bool>(cancel_); }

 private:
  std::function<void()> cancel_;
};

}  // namespace tessarin
