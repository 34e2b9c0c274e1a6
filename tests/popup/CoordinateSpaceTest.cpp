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

struct Flip {
  const char* name;
  Rect down;
  Rect up;
};

class CoordinateFlip : public ::testing::TestWithParam<Flip> {};

TEST_P(CoordinateFlip, turnsYOverAtThePrimaryScreen) {
  const CoordinateSpace space(2, 1080);
  EXPECT_EQ(space.flipped(GetParam().down), GetParam().up);
  EXPECT_EQ(space.flipped(GetParam().up), GetParam().down);
}

INSTANTIATE_TEST_SUITE_P(Rects, CoordinateFlip,
                         ::testing::Values(Flip{"topLeft", {0, 0, 10, 20}, {0, 1060, 10, 20}},
                                           Flip{"bottom", {5, 1060, 10, 20}, {5, 0, 10, 20}},
                                           Flip{"screenBelow", {5, 1100, 10, 20}, {5, -40, 10, 20}},
                                           Flip{"screenAbove", {5, -100, 10, 20}, {5, 1160, 10, 20}},
                                           Flip{"empty", {5, 100, 0, 0}, {5, 980, 0, 0}}),
                         [](const auto& flip) { return flip.param.name; });

TEST(CoordinateSpace, turnsAPointOver) {
  const CoordinateSpace space(1, 1080);
  EXPECT_EQ(space.flipped(Point{7, 80}), (Point{7, 1000}));
}

}  // namespace
}  // namespace tessarin
