#pragma once

#include <gtest/gtest.h>

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

TYPED_TEST_P(WorkspaceSuite, TellsWhenAnotherApplicationComesToTheFront) {
  EXPECT_FALSE(this->world.workspace().application("org.example.not-installed"));
  this->world.activate("first");
  EXPECT_TRUE(this->world.waitFor([&] { return this->isFrontmost("first"); }));
  int told = 0;
  auto subscription =
      this->world.workspace().onContextChanged([&] { told += this->isFrontmost("second") ? 1 : 0; });
  this->world.activate("second");
  EXPECT_TRUE(this->world.waitFor([&] { return told > 0; })) << "the new one must be known when it is told";
  subscription.reset();
  told = 0;
  this->world.activate("first");
  EXPECT_TRUE(this->world.waitFor([&] { return this->isFrontmost("first"); }));
  this->world.activate("second");
  EXPECT_TRUE(this->world.waitFor([&] { return this->isFrontmost("second"); }));
  EXPECT_EQ(told, 0) << "unsubscribed";
}

REGISTER_TYPED_TEST_SUITE_P(WorkspaceSuite, TellsWhenAnotherApplicationComesToTheFront);

}  // namespace tessarin::testing
