#pragma once

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

#include "platform/MainQueue.h"

namespace tessarin::testing {

/// A main queue in real time for tests with a real server: the test's thread runs it while it waits.
class LiveMainQueue final : public MainQueue {
 public:
  void async(Work work) override { after(std::chrono::milliseconds(0), std::move(work)); }
  void after(std::chrono::milliseconds delay, Work work) override {
    const std::lock_guard lock(mutex_);
    due_.emplace_back(now() + delay, std::move(work));
    changed_.notify_all();
  }
  Subscription repeat(std::chrono::milliseconds, Work) override { return {}; }
  std::chrono::steady_clock::time_point now() const override { return std::chrono::steady_clock::now(); }

  /// Runs what is due until the condition holds; false when it does not within the time.
  bool runUntil(const std::function<bool()>& condition,
                std::chrono::milliseconds time = std::chrono::seconds(20)) {
    const auto deadline = now() + time;
    while (!condition()) {
      if (now() > deadline) return false;
      runOne();
    }
    return true;
  }

 private:
  void runOne() {
    std::unique_lock lock(mutex_);
    if (due_.empty()) changed_.wait_for(lock, std::chrono::milliseconds(1));
    const auto next = std::ranges::find_if(due_, [this](const auto& job) { return job.first <= now(); });
    if (next == due_.end()) return;
    const Work work = std::move(next->second);
    due_.erase(next);
    lock.unlock();
    work();
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::deque<std::pair<std::chrono::steady_clock::time_point, Work>> due_;
};

}  // namespace tessarin::testing
