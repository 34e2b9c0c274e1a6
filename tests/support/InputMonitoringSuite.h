#pragma once

#include <gtest/gtest.h>

#include "platform/InputMonitoring.h"

namespace tessarin::testing {

/// How an InputMonitoring behaves, whoever implements it. `World` offers `InputMonitoring& monitoring()`,
/// `setUsable(bool)`: whether the session has a key tap, and `int explanations()`: how many the user got.
template <class World>
class InputMonitoringSuite : public ::testing::Test {
 protected:
  World world;
};

TYPED_TEST_SUITE_P(InputMonitoringSuite);

TYPED_TEST_P(InputMonitoringSuite, IsAskedAfreshAndExplainsOnlyWhatIsMissing) {
  int expected = 0;
  for (const bool isUsable : {true, false, true, false}) {
    this->world.setUsable(isUsable);
    EXPECT_EQ(this->world.monitoring().isGranted(), isUsable);
    this->world.monitoring().request();
    expected += isUsable ? 0 : 1;
    EXPECT_EQ(this->world.explanations(), expected);
  }
}

REGISTER_TYPED_TEST_SUITE_P(InputMonitoringSuite, IsAskedAfreshAndExplainsOnlyWhatIsMissing);

}  // namespace tessarin::testing
