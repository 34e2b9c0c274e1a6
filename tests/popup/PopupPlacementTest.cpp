#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

#include "platform/CoordinateSpace.h"
#include "popup/CaretLocator.h"
#include "popup/PopupPlacement.h"
#include "support/FakeAccessibility.h"
#include "support/FakeDesktop.h"

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

TEST(CoordinateSpace, countsPixelsAPointAndTurnsYOverAtThePrimaryScreen) {
  const CoordinateSpace space(1.25, 1080);
  EXPECT_EQ(space.toPoints(Rect{300, 150, 60, 30}), (Rect{240, 120, 48, 24}));
  EXPECT_EQ(space.toPixels(Rect{240, 120, 48, 24}), (Rect{300, 150, 60, 30}));
  EXPECT_EQ(space.flipped(Rect{5, 1100, 10, 20}), (Rect{5, -40, 10, 20}));
  EXPECT_EQ(space.flipped(Point{7, 80}), (Point{7, 1000}));
}

using std::chrono::milliseconds;

class CaretLocatorTest : public ::testing::Test {
 protected:
  CaretLocatorTest() {
    element->attributes[std::string(attribute::selectedTextRange)] = TextRange{7, 0};
    element->parameterized[std::string(attribute::boundsForRange)] = [this](const AttributeValue& range) {
      askedFor = std::get<TextRange>(range);
      return bounds ? std::optional<AttributeValue>(*bounds) : std::nullopt;
    };
    place(*element, {100, 200}, {400, 300});
    place(*window, {50, 100}, {800, 600});
    accessibility.application->attributes[std::string(attribute::focusedWindow)] = ElementRef(window);
    accessibility.focus(element);
    screens.all = {{{0, 0, 1000, 800}, {0, 0, 1000, 800}}, {{1000, 0, 1000, 800}, {1000, 0, 1000, 800}}};
  }

  static void place(FakeElement& element, Point position, Size size) {
    element.attributes[std::string(attribute::position)] = position;
    element.attributes[std::string(attribute::size)] = size;
  }

  ScreenLayout layout() { return ScreenLayout::read(screens); }

  FakeAccessibility accessibility;
  FakeScreens screens;
  std::shared_ptr<FakeElement> element = std::make_shared<FakeElement>();
  std::shared_ptr<FakeElement> window = std::make_shared<FakeElement>();
  std::optional<Rect> bounds = Rect{300, 100, 1, 16};
  TextRange askedFor;
  CaretLocator locator{accessibility, screens};
};

TEST_F(CaretLocatorTest, asksTheElementFirstWithinItsBudgetAndNothingWithoutTrust) {
  accessibility.trusted = false;
  EXPECT_EQ(locator.caretRect(layout()), std::nullopt);
  EXPECT_EQ(accessibility.calls, 0);
  accessibility.trusted = true;
  EXPECT_EQ(locator.caretRect(layout()), (Rect{300, 684, 1, 16}));
  EXPECT_EQ(askedFor, (TextRange{7, 0}));
  accessibility.callDuration = milliseconds(20);
  EXPECT_EQ(locator.caretRect(layout()), std::nullopt);
  EXPECT_LE(accessibility.elapsed(), milliseconds(50));
}

TEST_F(CaretLocatorTest, fallsBackFromElementToWindowToNothing) {
  screens.mouse = {600, 500};
  bounds = std::nullopt;
  EXPECT_EQ(locator.caretRect(layout()), (Rect{480, 484, 1, 16})) << "within the element";
  element->failing.insert(std::string(attribute::size));
  EXPECT_EQ(locator.caretRect(layout()), (Rect{600, 484, 1, 16})) << "within the window";
  window->failing.insert(std::string(attribute::position));
  EXPECT_EQ(locator.caretRect(layout()), std::nullopt);
}

TEST_F(CaretLocatorTest, believesBoundsThatCanBeTrue) {
  const double infinity = std::numeric_limits<double>::infinity();
  const Rect believed[] = {
      {300, 100, 1, 16}, {300, 100, 0, 0}, {0, 100, 1000, 30}, {-5, 790, 10, 20}, {1500, 100, 1, 16}};
  for (const Rect& rect : believed) {
    bounds = rect;
    EXPECT_TRUE(locator.selectionBounds(element, layout())) << rect.x << " " << rect.y;
  }
  const Rect impossible[] = {{0, 0, 0, 0},          {-1, -1, -1, -1},        {300, 100, -4, 16},
                             {300, 100, 21845, 16}, {300, 100, 1, 32767},    {-1.9e9, 22000, 1, 16},
                             {-20, 100, 10, 16},    {std::nan(""), 1, 1, 1}, {1, infinity, 1, 1}};
  for (const Rect& rect : impossible) {
    bounds = rect;
    EXPECT_FALSE(locator.selectionBounds(element, layout())) << rect.x << " " << rect.y << " " << rect.width;
  }
}

TEST_F(CaretLocatorTest, keepsThePointerInside) {
  const struct {
    Point mouse;  ///< screen coordinates
    Point inElement;
    Point inWindow;  ///< both accessibility coordinates
  } cases[] = {{{300, 500}, {300, 300}, {300, 300}},
               {{990, 10}, {480, 480}, {830, 660}},
               {{0, 800}, {100, 200}, {70, 140}}};
  const auto at = [](Point p) { return Rect{p.x, 800 - p.y - 16, 1, 16}; };
  for (const auto& [mouse, inElement, inWindow] : cases) {
    screens.mouse = mouse;
    EXPECT_EQ(locator.elementPointerRect(element, layout()), at(inElement));
    EXPECT_EQ(locator.windowPointerRect(accessibility.application, layout()), at(inWindow));
  }
}
}  // namespace
}  // namespace tessarin::testing
