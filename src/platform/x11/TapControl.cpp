#include "platform/x11/TapControl.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace tessarin::x11 {

TapControl::TapControl() : wakeFd_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}

TapControl::~TapControl() {
  close(wakeFd_);
}

void TapControl::wake() {
  const std::uint64_t one = 1;
  // Fails only when the counter is full, and then the thread will wake up anyway.
  [[maybe_unused]] const auto written = write(wakeFd_, &one, sizeof one);
}

void TapControl::clearWakeUp() {
  std::uint64_t count = 0;
  [[maybe_unused]] const auto taken = read(wakeFd_, &count, sizeof count);
}

void TapControl::setEnabled(bool enabled) {
  const std::lock_guard lock(mutex_);
  const bool hadTimedOut = std::exchange(settings_.hasTimedOut, false);
  if (std::exchange(settings_.isEnabled, enabled) != enabled || hadTimedOut) wake();
}

void TapControl::timeOut() {
  const std::lock_guard lock(mutex_);
  settings_.hasTimedOut = std::exchange(settings_.isEnabled, false);
}

void TapControl::setAttention(KeyAttention attention, const std::string& trigger) {
  const std::lock_guard lock(mutex_);
  const TapSettings wanted{settings_.isEnabled, settings_.hasTimedOut, attention, trigger};
  if (settings_ == wanted) return;
  settings_ = wanted;
  wake();
}

void TapControl::post(KeyPost post) {
  const std::lock_guard lock(mutex_);
  posts_.push_back(std::move(post));
  wake();
}

void TapControl::stop() {
  const std::lock_guard lock(mutex_);
  stopping_ = true;
  wake();
}

void TapControl::begin() {
  const std::lock_guard lock(mutex_);
  stopping_ = false;
}

TapSettings TapControl::settings() const {
  const std::lock_guard lock(mutex_);
  return settings_;
}

bool TapControl::isStopping() const {
  const std::lock_guard lock(mutex_);
  return stopping_;
}

std::vector<KeyPost> TapControl::takePosts() {
  const std::lock_guard lock(mutex_);
  return std::exchange(posts_, {});
}

}  // namespace tessarin::x11
