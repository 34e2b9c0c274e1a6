#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>

#include "platform/EventTap.h"

namespace tessarin::x11 {

/// One key that the main thread is asked about while the server holds it. Whoever comes first decides: the
/// main thread by claiming it, or the asking thread by giving up; a question given up is never judged.
class KeyQuestion {
 public:
  using Clock = std::chrono::steady_clock;

  /// How long the main thread may take to come to a key. With the grace the user's keyboard stands still for
  /// a fifth of a second at most: people notice more than that.
  static constexpr std::chrono::milliseconds answerTime{150};
  /// How much longer it may take once the main thread is at work on it: the answer is then near, and letting
  /// the key by would do twice what it does.
  static constexpr std::chrono::milliseconds graceTime{50};
  /// What the application gets to take the key in before the main thread goes on, unless the next key waits.
  static constexpr std::chrono::microseconds arrivalTime{250};

  explicit KeyQuestion(std::chrono::milliseconds time = answerTime) : deadline_(Clock::now() + time) {}

  /// Main thread: takes the question. The time left to answer; none when it was given up or is over, which
  /// the asking thread may not have noticed where the whole process stood still.
  std::optional<std::chrono::milliseconds> claim();
  /// Main thread, after `claim`: the key will be swallowed, whether the answer comes in time or not. False
  /// when the question was given up in the meantime.
  bool commitSwallow();
  /// Main thread, after `claim`.
  void answer(KeyVerdict verdict);
  /// Main thread, after `answer`: returns when the key has gone its way and arrived, or its time is over.
  void standBack();

  /// The asking thread: waits. None when it gave up.
  std::optional<KeyVerdict> await();
  /// The asking thread, after `await`: the answer has been carried out.
  void depart();
  /// The asking thread: there is another question.
  void makeWay();
  /// Any thread: an unclaimed question is given up at once.
  void cancel();

 private:
  enum class State { asked, claimed, committed, answered, givenUp };

  const Clock::time_point deadline_;
  std::mutex mutex_;
  std::condition_variable changed_;
  State state_ = State::asked;
  KeyVerdict verdict_ = KeyVerdict::pass;
  bool hasDeparted_ = false;
  bool isNextWaiting_ = false;
};

}  // namespace tessarin::x11
