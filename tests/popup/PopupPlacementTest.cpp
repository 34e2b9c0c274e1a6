#include <gtest/gtest.h>

#include "popup/PopupPlacement.h"

namespace tessarin {
namespace {

// The primary screen with a dock below and a bar above, one to its right that stands higher, and one, the
// main screen, to the left.
const Screen primary{{0, 0, 1000, 800}, {0, 50, 1000, 720}};
const Screen onTheRight{{1000, 200, 1000, 800}, {1000, 230, 1000, 770}};
const Screen onTheLeft{{-600, 0, 600, 800}, {-580, 0, 580, 800}};
const ScreenLayout threeScreens{{primary, onTheRight, onTheLeft}, onTheLeft};

TEST(PopupPlacement, growsWithTheRowsUpToEight) {
  for (const auto& [rows, height] : {std::pair{1, 100}, {2, 136}, {8, 352}, {9, 352}}) {
    EXPECT_EQ(popupHeight(rows), height) << rows;
  }
}

struct Placement {
  const char* name;
  std::optional<Rect> caret;
  Point mouse;
  Rect frame;  ///< of a popup with one row
};

class PopupFrame : public ::testing::TestWithParam<Placement> {};

TEST_P(PopupFrame, isBesideTheCaretAndOnItsScreen) {
  const Placement& placement = GetParam();
  EXPECT_EQ(popupFrame(1, placement.caret, threeScreens, placement.mouse), placement.frame);
}

constexpr Point anywhere{500, 400};

INSTANTIATE_TEST_SUITE_P(
    AtCaret, PopupFrame,
    ::testing::Values(
        Placement{"below", Rect{300, 400, 1, 16}, anywhere, {300, 296, 320, 100}},
        Placement{"fitsExactlyOnTheRight", Rect{680, 400, 1, 16}, anywhere, {680, 296, 320, 100}},
        Placement{"nearTheRightEdge", Rect{950, 400, 1, 16}, anywhere, {680, 296, 320, 100}},
        Placement{"fitsExactlyBelow", Rect{300, 154, 1, 16}, anywhere, {300, 50, 320, 100}},
        Placement{"nearTheDock", Rect{300, 153, 1, 16}, anywhere, {300, 173, 320, 100}},
        Placement{"leftOfTheVisibleFrame", Rect{-595, 400, 1, 16}, anywhere, {-580, 296, 320, 100}},
        Placement{"secondScreensRightEdge", Rect{1990, 700, 1, 16}, anywhere, {1680, 596, 320, 100}},
        Placement{"secondScreensBottom", Rect{1100, 300, 1, 16}, anywhere, {1100, 320, 320, 100}},
        Placement{"onNoScreen", Rect{1100, 100, 1, 16}, anywhere, {-320, 120, 320, 100}},
        Placement{"zeroSize", Rect{300, 400, 0, 0}, anywhere, {300, 296, 320, 100}}),
    [](const auto& placement) { return placement.param.name; });

INSTANTIATE_TEST_SUITE_P(
    AtPointer, PopupFrame,
    ::testing::Values(Placement{"noCaret", std::nullopt, {500, 400}, {508, 292, 320, 100}},
                      Placement{"allZeroCaret", Rect{}, {500, 400}, {508, 292, 320, 100}},
                      Placement{"fitsExactly", std::nullopt, {672, 158}, {680, 50, 320, 100}},
                      Placement{"nearTheRightEdge", std::nullopt, {673, 400}, {345, 292, 320, 100}},
                      Placement{"nearTheBottom", std::nullopt, {500, 157}, {508, 177, 320, 100}},
                      Placement{"inTheCorner", std::nullopt, {990, 60}, {662, 80, 320, 100}},
                      Placement{"leftOfTheVisibleFrame", std::nullopt, {-599, 400}, {-591, 292, 320, 100}}),
    [](const auto& placement) { return placement.param.name; });

TEST(PopupPlacement, doesWithoutScreens) {
  const ScreenLayout none;
  EXPECT_EQ(popupFrame(1, Rect{5000, 10, 1, 16}, none, {}), (Rect{5000, -94, 320, 100}));
  EXPECT_EQ(popupFrame(1, std::nullopt, none, {5000, 10}), (Rect{5008, -98, 320, 100}));
}

TEST(PopupPlacement, keepsTheLeftEdgeOnANarrowScreen) {
  const Screen narrow{{0, 0, 300, 800}, {10, 0, 290, 800}};
  EXPECT_EQ(popupFrame(1, Rect{200, 400, 1, 16}, {{narrow}, narrow}, {}).x, 10);
}

TEST(ScreenLayout, findsTheScreenOfAPoint) {
  EXPECT_EQ(threeScreens.screenContaining({0, 0}), primary);
  EXPECT_EQ(threeScreens.screenContaining({999.5, 799.5}), primary);
  EXPECT_EQ(threeScreens.screenContaining({1000, 300}), onTheRight);
  EXPECT_EQ(threeScreens.screenContaining({500, 10}), primary) << "behind the dock";
  EXPECT_EQ(threeScreens.screenContaining({5000, 5000}), onTheLeft) << "the main screen";
  EXPECT_EQ(ScreenLayout{}.screenContaining({0, 0}), std::nullopt);
}

}  // namespace
}  // namespace tessarin
