#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace tessarin::testing {

/// What a fake is still waiting for. Whatever has not come when the fake goes away fails the test.
template <class T>
class Expectations {
 public:
  explicit Expectations(std::string what) : what_(std::move(what)) {}
  ~Expectations() {
    for (const T& value : open_) ADD_FAILURE() << what_ << " never came: " << ::testing::PrintToString(value);
  }
  Expectations(const Expectations&) = delete;
  Expectations& operator=(const Expectations&) = delete;

  void expect(T value) { open_.push_back(std::move(value)); }
  /// Crosses the value off, if it was waited for.
  void came(const T& value) {
    const auto found = std::find(open_.begin(), open_.end(), value);
    if (found != open_.end()) open_.erase(found);
  }

 private:
  std::string what_;
  std::vector<T> open_;
};

}  // namespace tessarin::testing
