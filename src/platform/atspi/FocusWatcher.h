#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>

#include "platform/atspi/DBusHandles.h"
#include "platform/atspi/FocusEvents.h"
#include "platform/atspi/FocusModel.h"
#include "platform/atspi/WakeSignal.h"

namespace tessarin::atspi {

/// Follows the keyboard focus on a thread of its own, and makes the connections to the accessibility bus
/// there, so that the main thread never waits for one. Asleep while nothing happens.
class FocusWatcher {
 public:
  /// `sessionAddress`: the session bus, empty for the environment's. `ownProcess`: whose windows are passed
  /// over. `focusMoved` runs on the watcher's thread.
  FocusWatcher(std::string sessionAddress, std::uint32_t ownProcess, std::function<void()> focusMoved);
  /// Ends the thread; waits for a call of its that is under way, a few seconds at the very worst.
  ~FocusWatcher();
  FocusWatcher(const FocusWatcher&) = delete;
  FocusWatcher& operator=(const FocusWatcher&) = delete;

  FocusModel::Focus focus() const;
  /// See FocusModel::lost.
  FocusModel::Focus lostFocus() const;
  /// Looks at once for an element that no event has told, of a window that has; a few times a second at most.
  /// What comes of it is known when `isSearching` ends.
  void requestSearch();
  bool isSearching() const { return isSearchRequested_; }
  /// The connection for calls, when a new one has been made since it was last asked.
  ConnectionPtr takeCallConnection();
  /// Asks for another try when there is no bus; one in five seconds is made.
  void requestConnection();

 private:
  using Clock = std::chrono::steady_clock;

  void run();
  void connect();
  void connectToSession();
  void connectToAccessibility();
  void dropWhatIsGone();
  bool hasSomethingGone() const;
  void takeIn();
  void publish();
  void planSearch();
  void searchWhenDue();
  /// Whether that was done, or there is nothing to look for.
  bool serveSearchRequest();
  void sleep();
  static DBusHandlerResult onSessionMessage(DBusConnection* connection, DBusMessage* message, void* self);

  const std::string sessionAddress_;
  const std::uint32_t ownProcess_;
  const std::function<void()> focusMoved_;
  WakeSignal wake_;
  std::atomic<bool> isStopping_ = false;
  std::atomic<bool> isConnectionWanted_ = true;
  std::atomic<bool> isElementUnknown_ = false;
  std::atomic<bool> isSearchRequested_ = false;

  mutable std::mutex mutex_;
  FocusModel::Focus focus_;       // guarded by mutex_
  FocusModel::Focus lost_;        // guarded by mutex_
  ConnectionPtr callConnection_;  // guarded by mutex_
  // main thread:
  Clock::time_point lastRequest_;
  Clock::time_point lastSearchRequest_;

  // The rest belongs to the thread.
  ConnectionPtr session_;
  std::unique_ptr<FocusEvents> events_;
  std::optional<Clock::time_point> searchAt_;
  int activations_ = 0;
  std::size_t searches_ = 0;

  std::thread thread_;
};

}  // namespace tessarin::atspi
