#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace tessarin {

class MainQueue;
class UserDefaults;
class WallClock;

/// Says when an automatic check is due: one interval after the last check, whoever started that and in
/// whichever run of the program. Main thread.
class UpdateSchedule {
 public:
  UpdateSchedule(UserDefaults& defaults, MainQueue& queue, const WallClock& clock, std::function<void()> due);
  UpdateSchedule(const UpdateSchedule&) = delete;
  UpdateSchedule& operator=(const UpdateSchedule&) = delete;

  bool isEnabled() const { return isEnabled_; }
  /// A check that is due already is not announced at once, but after a moment, the program being about to
  /// start.
  void setEnabled(bool isEnabled);
  std::chrono::seconds interval() const { return interval_; }
  void setInterval(std::chrono::seconds interval);
  /// A check begins now. Remembered, so that the next one is an interval away.
  void recordCheck();

 private:
  void plan(std::chrono::milliseconds soonest);
  void wake();
  std::chrono::milliseconds remaining() const;

  UserDefaults& defaults_;
  MainQueue& queue_;
  const WallClock& clock_;
  std::function<void()> due_;
  bool isEnabled_ = false;
  std::chrono::seconds interval_{24 * 60 * 60};
  std::shared_ptr<char> planned_;  ///< the wake-up in force holds it weakly
};

}  // namespace tessarin
