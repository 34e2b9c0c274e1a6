#pragma once

#include "platform/Screens.h"

namespace tessarin::testing {

/// Monitors and a pointer that the test places.
class FakeScreens final : public Screens {
 public:
  std::vector<Screen> screens() override { return all; }
  std::optional<Screen> mainScreen() override {
    if (main) return main;
    return all.empty() ? std::nullopt : std::optional(all.front());
  }
  Point mouseLocation() override { return mouse; }

  std::vector<Screen> all{{{0, 0, 1920, 1080}, {0, 40, 1920, 1010}}};
  std::optional<Screen> main;  ///< absent: the first
  Point mouse{960, 540};
};

}  // namespace tessarin::testing
