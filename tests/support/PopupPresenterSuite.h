#pragma once

#include <gtest/gtest.h>

#include <optional>

#include "platform/PopupPresenter.h"

namespace tessarin::testing {

/// How a PopupPresenter behaves, whoever implements it. `World` offers:
///   PopupPresenter& presenter();
///   std::optional<PopupContent> shown();   what is on screen, when everything put off has been done
///   void clickRow(int index);              of what is shown
///   void clickVariant(int index);
template <class World>
class PopupPresenterSuite : public ::testing::Test {
 protected:
  static PopupContent contentOf(const std::string& query) {
    PopupContent content;
    content.query = query;
    content.rows = {{"0", "x", query, query, true}, {"1", "y", query, query, false}};
    return content;
  }

  PopupPresenter& presenter() { return world.presenter(); }
  World world;
};

TYPED_TEST_SUITE_P(PopupPresenterSuite);

TYPED_TEST_P(PopupPresenterSuite, ShowsWhatWasPresentedLastUntilItIsHidden) {
  this->presenter().anticipate();
  EXPECT_FALSE(this->presenter().isVisible());
  EXPECT_EQ(this->world.shown(), std::nullopt) << "only expected";
  for (const char* query : {"s", "sm", "smi"}) {
    this->presenter().present(this->contentOf(query));
    EXPECT_TRUE(this->presenter().isVisible()) << "from now on, whenever it is drawn";
  }
  EXPECT_EQ(this->world.shown(), this->contentOf("smi"));
  this->presenter().hide();
  EXPECT_FALSE(this->presenter().isVisible());
  EXPECT_EQ(this->world.shown(), std::nullopt);
  this->presenter().present(this->contentOf("s"));
  this->presenter().hide();
  EXPECT_EQ(this->world.shown(), std::nullopt) << "not even late";
  this->presenter().present(this->contentOf("s"));
  EXPECT_EQ(this->world.shown(), this->contentOf("s"));
}

TYPED_TEST_P(PopupPresenterSuite, TellsWhatIsClicked) {
  std::vector<int> clicked;
  this->presenter().onVariantClicked([&](int index) { clicked.push_back(100 + index); });
  this->presenter().onRowClicked([&](int index) {
    clicked.push_back(index);
    this->presenter().hide();
  });
  this->presenter().present(this->contentOf("s"));
  ASSERT_NE(this->world.shown(), std::nullopt);
  this->world.clickVariant(3);
  this->world.clickRow(1);
  EXPECT_EQ(clicked, (std::vector<int>{103, 1}));
  EXPECT_FALSE(this->presenter().isVisible());
}

REGISTER_TYPED_TEST_SUITE_P(PopupPresenterSuite, ShowsWhatWasPresentedLastUntilItIsHidden,
                            TellsWhatIsClicked);

}  // namespace tessarin::testing
