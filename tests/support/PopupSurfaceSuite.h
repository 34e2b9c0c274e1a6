#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "platform/PopupSurface.h"
#include "ui/PopupContents.h"

namespace tessarin::testing {

/// How a PopupSurface behaves, whoever implements it. `World` offers:
///   PopupSurface& surface();
///   std::optional<Rect> frame();                       where it stands; none while it is hidden
///   void clickRow(const PopupContent&, int index);     of what is shown
///   void clickVariant(const PopupContent&, int index);
///   bool waitFor(condition);                           lets windows and clicks come until it holds
template <class World>
class PopupSurfaceSuite : public ::testing::Test {
 protected:
  static constexpr Rect shortFrame{200, 752, 320, 172};
  static constexpr Rect tallFrame{10, 20, 320, 352};

  PopupSurface& surface() { return world.surface(); }
  void show(const PopupContent& content, const Rect& frame) {
    surface().show(content, frame);
    EXPECT_TRUE(world.waitFor([&] { return world.frame() == frame; }));
  }

  World world;
};

TYPED_TEST_SUITE_P(PopupSurfaceSuite);

TYPED_TEST_P(PopupSurfaceSuite, StandsWhereItWasShownLastUntilItIsHidden) {
  EXPECT_EQ(this->world.frame(), std::nullopt);
  this->show(popupWithRows(3), this->shortFrame);
  this->show(popupWithRows(8), this->tallFrame);
  this->surface().hide();
  EXPECT_TRUE(this->world.waitFor([&] { return !this->world.frame(); }));
  this->show(popupWithRows(3), this->shortFrame);
}

TYPED_TEST_P(PopupSurfaceSuite, TellsTheRowAndTheVariantThatAreClicked) {
  const PopupContent picker = withPicker(popupWithRows(8));
  std::vector<int> clicked;
  this->surface().onVariantClicked([&](int index) { clicked.push_back(100 + index); });
  this->surface().onRowClicked([&](int index) {
    clicked.push_back(index);
    this->surface().hide();
    this->surface().onRowClicked({});
  });
  this->show(picker, this->tallFrame);
  this->world.clickVariant(picker, 4);
  this->world.clickRow(picker, 5);
  EXPECT_TRUE(this->world.waitFor([&] { return !this->world.frame(); })) << "a click may hide it";
  EXPECT_EQ(clicked, (std::vector<int>{104, 5}));
}

REGISTER_TYPED_TEST_SUITE_P(PopupSurfaceSuite, StandsWhereItWasShownLastUntilItIsHidden,
                            TellsTheRowAndTheVariantThatAreClicked);

}  // namespace tessarin::testing
