#include <gtest/gtest.h>

#include "platform/CoordinateSpace.h"

namespace tessarin {
namespace {

TEST(CoordinateSpace, countsPixelsAPoint) {
  for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
    const CoordinateSpace space(scale, 1080);
    const Rect pixels{300, 150, 60, 30};
    EXPECT_EQ(space.toPoints(pixels), (Rect{300 / scale, 150 / scale, 60 / scale, 30 / scale}));
    EXPECT_EQ(space.toPixels(space.toPoints(pixels)), pixels);
  }
}

TEST(CoordinateSpace, turnsYOverAtThePrimaryScreen) {
  const CoordinateSpace space(2, 1080);
  const Rect pairs[][2] = {{{0, 0, 10, 20}, {0, 1060, 10, 20}},
                           {{5, 1100, 10, 20}, {5, -40, 10, 20}},
                           {{5, 100, 0, 0}, {5, 980, 0, 0}}};
  for (const auto& [down, up] : pairs) {
    EXPECT_EQ(space.flipped(down), up);
    EXPECT_EQ(space.flipped(up), down);
  }
  EXPECT_EQ(space.flipped(Point{7, 80}), (Point{7, 1000}));
}

}  // namespace
}  // namespace tessarin
