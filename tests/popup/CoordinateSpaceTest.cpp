#include <gtest/gtest.h>

#include "platform/CoordinateSpace.h"

namespace tessarin::testing {
namespace {

TEST(CoordinateSpace, countsPixelsAPointAndTurnsYOverAtThePrimaryScreen) {
  const CoordinateSpace space(1.25, 1080);
  EXPECT_EQ(space.toPoints(Rect{300, 150, 60, 30}), (Rect{240, 120, 48, 24}));
  EXPECT_EQ(space.toPixels(Rect{240, 120, 48, 24}), (Rect{300, 150, 60, 30}));
  EXPECT_EQ(space.flipped(Rect{5, 1100, 10, 20}), (Rect{5, -40, 10, 20}));
  EXPECT_EQ(space.flipped(Point{7, 80}), (Point{7, 1000}));
}

}  // namespace
}  // namespace tessarin::testing
