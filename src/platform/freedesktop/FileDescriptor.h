#pragma once

#include <unistd.h>

#include <utility>

namespace tessarin::freedesktop {

/// Owns a file descriptor; -1 is none.
class FileDescriptor {
 public:
  FileDescriptor() = default;
  explicit FileDescriptor(int value) : value_(value) {}
  FileDescriptor(FileDescriptor&& other) noexcept : value_(std::exchange(other.value_, -1)) {}
  FileDescriptor& operator=(FileDescriptor&& other) noexcept {
    std::swap(value_, other.value_);
    return *this;
  }
  ~FileDescriptor() {
    if (value_ >= 0) ::close(value_);
  }

  int get() const { return value_; }
  explicit operator bool() const { return value_ >= 0; }

 private:
  int value_ = -1;
};

}  // namespace tessarin::freedesktop
