#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

#include "popup/CaretLocator.h"
#include "support/FakeAccessibility.h"
#include "support/FakeScreens.h"

namespace tessarin::testing {
namespace {

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
  // In a tiny element the insets of the far edges win.
  place(*element, {100, 200}, {10, 10});
  screens.mouse = {300, 300};
  EXPECT_EQ(locator.elementPointerRect(element, layout()), (Rect{90, 800 - 190 - 16, 1, 16}));
}

}  // namespace
}  // namespace tessarin::testing
