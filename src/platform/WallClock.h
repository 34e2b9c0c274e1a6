#pragma once

#include <chrono>

namespace tessarin {

/// The time of day, as set on the machine; tests bring their own.
class WallClock {
 public:
  using TimePoint = std::chrono::system_clock::time_point;

  virtual ~WallClock() = default;
  virtual TimePoint now() const = 0;
};

class SystemWallClock final : public WallClock {
 public:
  TimePoint now() const override { return std::chrono::system_clock::now(); }
};

}  // namespace tessarin
