#pragma once

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>

namespace tessarin::atspi {

/// Ends another thread's poll.
class WakeSignal {
 public:
  WakeSignal() : fd_(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {}
  ~WakeSignal() { close(fd_); }
  WakeSignal(const WakeSignal&) = delete;
  WakeSignal& operator=(const WakeSignal&) = delete;

  void send() { [[maybe_unused]] const int result = eventfd_write(fd_, 1); }
  void clear() {
    std::uint64_t count = 0;
    [[maybe_unused]] const int result = eventfd_read(fd_, &count);
  }
  int fd() const { return fd_; }

 private:
  int fd_;
};

}  // namespace tessarin::atspi
