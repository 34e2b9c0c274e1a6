#pragma once

#include <gtest/gtest.h>

#include "platform/Screens.h"

namespace tessarin::testing {

/// How a Screens behaves, whoever implements it. `World` offers:
///   Screens& screens();
///   void layOut();            a primary monitor at (640, -100), 640 x 924, another at (0, 24), 640 x 900
///   void focus(std::size_t);  the keyboard focus goes to the first or the second of them
///   void movePointer(Point);  screen coordinates
template <class World>
class ScreensSuite : public ::testing::Test {
 protected:
  Screens& screens() { return world.screens(); }
  World world;
};

TYPED_TEST_SUITE_P(ScreensSuite);

TYPED_TEST_P(ScreensSuite, KnowsMonitorsFocusAndPointer) {
  this->world.movePointer({300, 824});
  EXPECT_EQ(this->screens().mouseLocation(), (Point{300, 824}));
  this->world.layOut();
  const auto found = this->screens().screens();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].frame, (Rect{640, -100, 640, 924}));
  EXPECT_EQ(found[1].frame, (Rect{0, 24, 640, 900}));
  for (const Screen& screen : found) EXPECT_EQ(screen.visibleFrame, screen.frame) << "there are no panels";
  EXPECT_EQ(this->screens().mainScreen(), found[0]);
  this->world.focus(1);
  EXPECT_EQ(this->screens().mainScreen(), found[1]);
  this->world.focus(0);
  EXPECT_EQ(this->screens().mainScreen(), found[0]);
}

REGISTER_TYPED_TEST_SUITE_P(ScreensSuite, KnowsMonitorsFocusAndPointer);

}  // namespace tessarin::testing
