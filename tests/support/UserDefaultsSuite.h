#pragma once

#include <gtest/gtest.h>

#include "platform/UserDefaults.h"

namespace tessarin::testing {

/// How a UserDefaults behaves, whoever implements it. `World` offers `UserDefaults& defaults()`.
template <class World>
class UserDefaultsSuite : public ::testing::Test {
 protected:
  UserDefaults& defaults() { return world.defaults(); }
  World world;
};

TYPED_TEST_SUITE_P(UserDefaultsSuite);

TYPED_TEST_P(UserDefaultsSuite, AnswersWhatWasSetLast) {
  UserDefaults& defaults = this->defaults();
  EXPECT_EQ(defaults.boolean("flag"), std::nullopt);
  defaults.set("text", ";");
  defaults.set("flag", true);
  defaults.set("flag", false);
  defaults.set("list", std::vector<std::string>{"b", "", "😀"});
  EXPECT_EQ(defaults.string("text"), ";");
  EXPECT_EQ(defaults.boolean("flag"), false);
  EXPECT_EQ(defaults.stringArray("list"), (std::vector<std::string>{"b", "", "😀"}));
  EXPECT_EQ(defaults.boolean("text"), std::nullopt) << "a value of another type is absent";
  EXPECT_EQ(defaults.stringArray("flag"), std::nullopt);
  EXPECT_EQ(defaults.string("list"), std::nullopt);
  defaults.set("list", std::vector<std::string>{});
  EXPECT_EQ(defaults.stringArray("list"), std::vector<std::string>());
  defaults.set("text", "true");
  EXPECT_EQ(defaults.boolean("text"), std::nullopt);
}

TYPED_TEST_P(UserDefaultsSuite, TellsAfterEveryChangeUntilUnsubscribed) {
  UserDefaults& defaults = this->defaults();
  std::vector<std::string> seen;
  auto subscription = defaults.onChange([&] { seen.push_back(defaults.string("text").value_or("none")); });
  defaults.set("text", "a");
  defaults.set("text", "b");
  subscription.reset();
  defaults.set("text", "c");
  EXPECT_EQ(seen, (std::vector<std::string>{"a", "b"}));
}

REGISTER_TYPED_TEST_SUITE_P(UserDefaultsSuite, AnswersWhatWasSetLast, TellsAfterEveryChangeUntilUnsubscribed);

}  // namespace tessarin::testing
