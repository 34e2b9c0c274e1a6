#pragma once

#include <gtest/gtest.h>

#include "platform/LoginItem.h"

namespace tessarin::testing {

/// How a LoginItem behaves, whoever implements it. `World` offers `LoginItem& item()`, not registered at
/// first, `breakDown()`, after which nothing can be changed any more, and `disableOutside()`: the user
/// switches the item off with the desktop's own means.
template <class World>
class LoginItemSuite : public ::testing::Test {
 protected:
  LoginItem& item() { return world.item(); }
  World world;
};

TYPED_TEST_SUITE_P(LoginItemSuite);

TYPED_TEST_P(LoginItemSuite, IsEnabledWhileRegisteredOnceOrTwice) {
  EXPECT_FALSE(this->item().isEnabled());
  for (const bool isOn : {true, false}) {
    for (int times = 0; times < 2; ++times) {
      EXPECT_EQ(isOn ? this->item().registerItem() : this->item().unregisterItem(), std::nullopt);
      EXPECT_EQ(this->item().isEnabled(), isOn);
    }
  }
}

TYPED_TEST_P(LoginItemSuite, SeesWhatWasChangedOutside) {
  ASSERT_EQ(this->item().registerItem(), std::nullopt);
  this->world.disableOutside();
  EXPECT_FALSE(this->item().isEnabled());
  EXPECT_EQ(this->item().registerItem(), std::nullopt);
  EXPECT_TRUE(this->item().isEnabled()) << "asked for by the user, again";
}

TYPED_TEST_P(LoginItemSuite, AFailureSaysWhyAndChangesNothing) {
  for (const bool wasOn : {false, true}) {
    TypeParam own;
    if (wasOn) {
      ASSERT_EQ(own.item().registerItem(), std::nullopt);
    }
    own.breakDown();
    const auto failure = wasOn ? own.item().unregisterItem() : own.item().registerItem();
    ASSERT_TRUE(failure);
    EXPECT_FALSE(failure->empty());
    EXPECT_EQ(own.item().isEnabled(), wasOn);
  }
}

REGISTER_TYPED_TEST_SUITE_P(LoginItemSuite, IsEnabledWhileRegisteredOnceOrTwice, SeesWhatWasChangedOutside,
                            AFailureSaysWhyAndChangesNothing);

}  // namespace tessarin::testing
