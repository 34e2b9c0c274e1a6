#pragma once

#include <chrono>
#include <functional>

#include "base/Subscription.h"

namespace tessarin {

/// Runs work on the main thread later.
class MainQueue {
 public:
  using Work = std::function<void()>;

  virtual ~MainQueue() = default;

  /// As soon as the main thread is free, in the order of the calls. The only operation that any thread may
  /// call.
  virtual void async(Work work) = 0;
  /// Once, not before the delay has passed. Cannot be cancelled: the work checks a weak owner.
  virtual void after(std::chrono::milliseconds delay, Work work) = 0;
  /// Again and again, until the token goes.
  [[nodiscard]] virtual Subscription repeat(std::chrono::milliseconds interval, Work work) = 0;
  /// A clock that only goes forward; the delays above are measured with it.
  virtual std::chrono::steady_clock::time_point now() const = 0;
};

}  // namespace tessarin
