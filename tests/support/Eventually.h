#pragma once

#include <chrono>
#include <thread>

namespace tessarin::testing {

/// Waits for a condition that another thread or process brings about. `turn` runs between two looks, to let
/// queued work happen. False when it has not come about in time.
bool eventually(auto condition, auto turn, std::chrono::milliseconds patience = std::chrono::seconds(20)) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  for (;;) {
    turn();
    if (condition()) return true;
    if (std::chrono::steady_clock::now() > deadline) return false;
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
}

bool eventually(auto condition) {
  return eventually(condition, [] {});
}

}  // namespace tessarin::testing
