#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/Workspace.h"

namespace tessarin::testing {

/// How a Workspace behaves, whoever implements it. `World` offers:
///   Workspace& workspace();
///   void activate(const std::string& name);  a window of that application comes to the front
///   bool waitFor(condition);                 lets the main queue run until it holds
template <class World>
class WorkspaceSuite : public ::testing::Test {
 protected:
  bool isFrontmost(const std::string& name) {
    const auto application = world.workspace().frontmostApplication();
    return application && application->bundleIdentifier == name;
  }
  World world;
};

TYPED_TEST_SUITE_P(WorkspaceSuite);

TYPED_TEST_P(WorkspaceSuite, KnowsTheFrontmostApplication) {
  this->world.activate("first");
  EXPECT_TRUE(this->world.waitFor([&] { return this->isFrontmost("first"); }));
  this->world.activate("second");
  EXPECT_TRUE(this->world.waitFor([&] { return this->isFrontmost("second"); }));
}

TYPED_TEST_P(WorkspaceSuite, TellsWhenAnotherApplicationComesToTheFront) {
  this->world.activate("first");
  EXPECT_TRUE(this->world.waitFor([&] { return this->isFrontmost("first"); }));
  bool isTold = false;
  const auto subscription =
      this->world.workspace().onContextChanged([&] { isTold = isTold || this->isFrontmost("second"); });
  this->world.activate("second");
  EXPECT_TRUE(this->world.waitFor([&] { return isTold; })) << "the new one must be known when it is told";
}

TYPED_TEST_P(WorkspaceSuite, DoesNotTellWhoHasUnsubscribed) {
  int told = 0;
  auto subscription = this->world.workspace().onContextChanged([&] { ++told; });
  this->world.activate("first");
  EXPECT_TRUE(this->world.waitFor([&] { return told > 0; }));
  subscription.reset();
  told = 0;
  this->world.activate("second");
  EXPECT_TRUE(this->world.waitFor([&] { return this->isFrontmost("second"); }));
  EXPECT_EQ(told, 0);
}

TYPED_TEST_P(WorkspaceSuite, HasNothingUnderAnUnknownIdentifier) {
  EXPECT_FALSE(this->world.workspace().application("org.example.not-installed"));
}

REGISTER_TYPED_TEST_SUITE_P(WorkspaceSuite, KnowsTheFrontmostApplication,
                            TellsWhenAnotherApplicationComesToTheFront, DoesNotTellWhoHasUnsubscribed,
                            HasNothingUnderAnUnknownIdentifier);

}  // namespace tessarin::testing
