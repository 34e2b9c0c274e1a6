#include <gtest/gtest.h>

#include "platform/CoordinateSpace.h"
#include "popup/PopupPlacement.h"

namespace tessarin::testing {
namespace {

// The primary screen with a dock below and a bar above, one to its right that stands higher, and one, the
// main screen, to the left.
const Screen primary{{0, 0, 1000, 800}, {0, 50, 1000, 720}};
const Screen onTheRight{{1000, 200, 1000, 800}, {1000, 230, 1000, 770}};
const Screen onTheLeft{{-600, 0, 600, 800}, {-580, 0, 580, 800}};
const ScreenLayout threeScreens{{primary, onTheRight, onTheLeft}, onTheLeft};

TEST(PopupPlacement, isBesideTheCaretAndOnItsScreen) {
  const struct {
    const char* name;
    Rect caret;
    Point corner;  ///< of a popup with one row
  } cases[] = {
      {"below", {300, 400, 1, 16}, {300, 296}},
      {"near the right edge", {950, 400, 1, 16}, {680, 296}},
      {"fits exactly below", {300, 154, 1, 16}, {300, 50}},
      {"near the dock", {300, 153, 1, 16}, {300, 173}},
      {"left of the visible frame", {-595, 400, 1, 16}, {-580, 296}},
      {"second screen's bottom", {1100, 300, 1, 16}, {1100, 320}},
      {"on no screen", {1100, 100, 1, 16}, {-320, 120}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(popupFrame(1, c.caret, threeScreens, {500, 400}), (Rect{c.corner.x, c.corner.y, 320, 100}))
        << c.name;
  }
}

TEST(PopupPlacement, isBesideThePointerWithoutACaret) {
  const std::pair<Point, Point> cases[] = {
      {{500, 400}, {508, 292}}, {{673, 400}, {345, 292}}, {{500, 157}, {508, 177}}, {{990, 60}, {662, 80}}};
  for (const auto& [mouse, corner] : cases) {
    const Rect frame{corner.x, corner.y, 320, 100};
    EXPECT_EQ(popupFrame(1, std::nullopt, threeScreens, mouse), frame) << mouse.x;
    EXPECT_EQ(popupFrame(1, Rect{}, threeScreens, mouse), frame) << mouse.x;
  }
}

TEST(PopupPlacement, doesWithoutScreens) {
  const ScreenLayout none;
  EXPECT_EQ(popupFrame(1, Rect{5000, 10, 1, 16}, none, {}), (Rect{5000, -94, 320, 100}));
  EXPECT_EQ(popupFrame(1, std::nullopt, none, {5000, 10}), (Rect{5008, -98, 320, 100}));
}

TEST(CoordinateSpace, countsPixelsAPointAndTurnsYOverAtThePrimaryScreen) {
  const CoordinateSpace space(1.25, 1080);
  EXPECT_EQ(space.toPoints(Rect{300, 150, 60, 30}), (Rect{240, 120, 48, 24}));
  EXPECT_EQ(space.toPixels(Rect{240, 120, 48, 24}), (Rect{300, 150, 60, 30}));
  EXPECT_EQ(space.flipped(Rect{5, 1100, 10, 20}), (Rect{5, -40, 10, 20}));
  EXPECT_EQ(space.flipped(Point{7, 80}), (Point{7, 1000}));
}

}  // namespace
}  // namespace tessarin::testing
