#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "platform/MainQueue.h"

namespace tessarin::testing {

/// A main queue whose clock stands still until the test moves it. Nothing runs by itself.
class ManualMainQueue final : public MainQueue {
 public:
  using Clock = std::chrono::steady_clock;

  void async(Work work) override { after(std::chrono::milliseconds(0), std::move(work)); }
  void after(std::chrono::milliseconds delay, Work work) override {
    add(delay, std::make_shared<Job>(Job{std::move(work)}));
  }
  [[nodiscard]] Subscription repeat(std::chrono::milliseconds interval, Work work) override;
  Clock::time_point now() const override { return now_; }

  /// Runs what is due now, and what that work makes due.
  void runReady() { advance(std::chrono::milliseconds(0)); }
  /// Moves the clock and runs everything that becomes due on the way, each at its own time.
  void advance(std::chrono::milliseconds duration);
  /// How many pieces of work are waiting: queued, delayed and repeating.
  std::size_t pending() const;

 private:
  struct Job {
    Work work;
    std::chrono::milliseconds interval{0};  ///< zero: once
  };
  using Key = std::pair<Clock::time_point, std::uint64_t>;
  struct State {
    std::mutex mutex;
    std::uint64_t next = 0;
    std::map<Key, std::shared_ptr<Job>> jobs;
  };

  void add(std::chrono::milliseconds delay, std::shared_ptr<Job> job);
  std::shared_ptr<Job> takeNext(Clock::time_point limit);

  std::shared_ptr<State> state_ = std::make_shared<State>();
  Clock::time_point now_{};
};

}  // namespace tessarin::testing
