#pragma once

#include <algorithm>
#include <chrono>

namespace tessarin::atspi {

/// The time that may be spent waiting for other applications until the next account is opened. Only waiting
/// is charged, so that work done later for the same key still finds what the earlier calls left over.
class CallBudget {
 public:
  using Duration = std::chrono::nanoseconds;

  void open(Duration budget) { left_ = budget; }
  /// How long something that would like to take `wish` may take; zero when nothing is left.
  Duration allowance(Duration wish) const {
    return left_ < leastUseful ? Duration::zero() : std::min(wish, left_);
  }
  void charge(Duration spent) { left_ -= std::min(left_, spent); }

 private:
  /// An application that is awake needs 0.2 to 0.6 ms for an answer.
  static constexpr Duration leastUseful = std::chrono::milliseconds(1);

  Duration left_ = Duration::max();
};

}  // namespace tessarin::atspi
