#pragma once

#include <xcb/xcb.h>

#include <atomic>
#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {

/// A connection to the X server together with the one thread that uses it. It sleeps until an event, a posted
/// work or a timer is due. When the server goes away it goes on running posted work, whose requests then
/// fail, until the program ends for the same reason.
class XThread {
 public:
  using Work = std::function<void()>;
  using EventHandler = std::function<void(const xcb_generic_event_t& event)>;

  /// `display` as in DISPLAY; empty takes DISPLAY itself. Null when no server answers.
  static std::unique_ptr<XThread> connect(const std::string& display = {});
  ~XThread();
  XThread(const XThread&) = delete;
  XThread& operator=(const XThread&) = delete;

  /// Before `start` the caller may use the connection, afterwards only what runs on the thread.
  xcb_connection_t* connection() const { return connection_.get(); }
  xcb_screen_t* screen() const { return screen_; }
  /// Errors of unchecked requests are not handed on: here they mean that a foreign window has gone.
  void start(EventHandler handler);
  /// Ends the thread and drops work that has not run. Any thread but its own.
  void stop();

  /// Runs the work on the thread soon, in the order of the calls. Any thread.
  void post(Work work);
  /// Posts the work and waits until it has run, or for the time given. False when it has not.
  bool call(Work work, std::chrono::milliseconds timeout);
  /// Runs the work on the thread once the delay has passed. On the thread only; cannot be cancelled.
  void after(std::chrono::milliseconds delay, Work work);
  /// Handles the events that have come. On the thread only, for work that has to be in step with them.
  void handleEvents();
  /// The server's clock, read through a property of `window`, which has to select property changes. On the
  /// thread only.
  xcb_timestamp_t serverTime(xcb_window_t window);

 private:
  using Clock = std::chrono::steady_clock;

  XThread(Connection connection, int screenNumber);
  void run();
  void runPosted();
  void runTimers();
  void sleep();
  int timeout() const;
  Owned<xcb_generic_event_t> nextEvent();

  Connection connection_;
  xcb_screen_t* screen_ = nullptr;
  EventHandler handler_;
  std::thread thread_;
  int wakeUp_ = -1;
  std::atomic<bool> stopping_ = false;
  bool lost_ = false;
  std::mutex mutex_;
  std::vector<Work> posted_;
  std::multimap<Clock::time_point, Work> timers_;
  std::deque<Owned<xcb_generic_event_t>> backlog_;  // events met while waiting for the server's time
};

}  // namespace tessarin::x11
