#include "platform/x11/KeyQuestion.h"

#include <algorithm>

namespace tessarin::x11 {

std::optional<std::chrono::milliseconds> KeyQuestion::claim() {
  const std::lock_guard lock(mutex_);
  if (state_ != State::asked || Clock::now() >= deadline_) return std::nullopt;
  state_ = State::claimed;
  const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline_ - Clock::now());
  return std::max(left, std::chrono::milliseconds(0));
}

bool KeyQuestion::commitSwallow() {
  const std::lock_guard lock(mutex_);
  if (state_ != State::claimed || Clock::now() >= deadline_ + graceTime) return false;
  state_ = State::committed;
  changed_.notify_all();
  return true;
}

void KeyQuestion::answer(KeyVerdict verdict) {
  const std::lock_guard lock(mutex_);
  if (state_ != State::claimed && state_ != State::committed) return;
  verdict_ = state_ == State::committed ? KeyVerdict::swallow : verdict;
  state_ = State::answered;
  changed_.notify_all();
}

void KeyQuestion::cancel() {
  const std::lock_guard lock(mutex_);
  if (state_ == State::asked) state_ = State::givenUp;
  hasDeparted_ = true;
  changed_.notify_all();
}

void KeyQuestion::depart() {
  const std::lock_guard lock(mutex_);
  hasDeparted_ = true;
  changed_.notify_all();
}

void KeyQuestion::makeWay() {
  const std::lock_guard lock(mutex_);
  isNextWaiting_ = true;
  changed_.notify_all();
}

void KeyQuestion::standBack() {
  std::unique_lock lock(mutex_);
  if (!changed_.wait_until(lock, deadline_, [this] { return hasDeparted_; })) return;
  if (verdict_ == KeyVerdict::pass) changed_.wait_for(lock, arrivalTime, [this] { return isNextWaiting_; });
}

std::optional<KeyVerdict> KeyQuestion::await() {
  std::unique_lock lock(mutex_);
  const auto isOver = [this] { return state_ == State::answered || state_ == State::givenUp; };
  changed_.wait_until(lock, deadline_, isOver);
  changed_.wait_until(lock, deadline_ + graceTime, [this] { return state_ != State::claimed; });
  if (state_ == State::committed) return KeyVerdict::swallow;
  if (state_ == State::answered) return verdict_;
  state_ = State::givenUp;
  return std::nullopt;
}

}  // namespace tessarin::x11
