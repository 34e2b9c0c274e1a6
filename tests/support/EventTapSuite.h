#pragma once

#include <gtest/gtest.h>

#include <optional>
#include <utility>

#include "platform/EventTap.h"
#include "text/Graphemes.h"

namespace tessarin::testing {

/// How an EventTap behaves, whoever implements it. `World` offers:
///   EventTap& tap();
///   void type(const std::string& keys);  the user types letters and triggers (":")
///   std::string document();              what has got there
///   bool waitFor(condition);             lets keys and verdicts travel until it holds
template <class World>
class EventTapSuite : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(tap().create([this](const KeyEvent& event) { return judge(event); }));
    EXPECT_FALSE(tap().isEnabled());
    attend(KeyAttention::triggerOnly);
    tap().setEnabled(true);
    waitUntilSeen();
    before_ = world.document().size();
    seen.clear();
  }
  EventTap& tap() { return world.tap(); }
  void attend(KeyAttention attention) { tap().setAttention(attention, ":"); }
  /// Types triggers until one is seen: the tap is at work then.
  void waitUntilSeen() {
    std::size_t expected = world.document().size();
    ASSERT_TRUE(world.waitFor([&] {
      if (!seen.empty()) return true;
      world.type(":");
      ++expected;
      return false;
    }));
    ASSERT_TRUE(world.waitFor([&] { return world.document().size() == expected; }));
  }
  /// Types a trigger whose judging changes the attention.
  void typeTriggerFor(KeyAttention attention) {
    next_ = attention;
    world.type(":");
  }
  bool becomes(const std::string& document) {
    return world.waitFor([&] { return world.document().substr(before_) == document; });
  }

  World world;
  std::string seen;
  std::string unwanted;  ///< swallowed

 private:
  KeyVerdict judge(const KeyEvent& event) {
    const std::string typed = text::fromUtf16(event.text);
    seen += typed;
    if (next_) attend(*std::exchange(next_, std::nullopt));
    return unwanted.find(typed) != std::string::npos ? KeyVerdict::swallow : KeyVerdict::pass;
  }

  std::size_t before_ = 0;
  std::optional<KeyAttention> next_;
};

TYPED_TEST_SUITE_P(EventTapSuite);

TYPED_TEST_P(EventTapSuite, JudgesEveryKeyBehindTheOneThatAskedForIt) {
  this->unwanted = "b";
  this->typeTriggerFor(KeyAttention::everyKey);
  this->world.type("abc");
  EXPECT_TRUE(this->becomes(":ac")) << this->world.document();
  EXPECT_EQ(this->seen, ":abc");
}

TYPED_TEST_P(EventTapSuite, JudgesKeptKeysInOrderAsIfTypedJustThen) {
  this->unwanted = "b";
  this->typeTriggerFor(KeyAttention::holdBack);
  this->world.type("x:aby");
  ASSERT_TRUE(this->becomes(":"));
  EXPECT_EQ(this->seen, ":");
  this->attend(KeyAttention::everyKey);
  this->world.type("z");
  EXPECT_TRUE(this->becomes(":x:ayz")) << this->world.document();
  EXPECT_EQ(this->seen, ":x:abyz");
}

TYPED_TEST_P(EventTapSuite, PassesKeptKeysOnWhenItIsDestroyed) {
  this->typeTriggerFor(KeyAttention::holdBack);
  this->world.type("x:ab");
  ASSERT_TRUE(this->becomes(":"));
  this->tap().destroy();
  EXPECT_TRUE(this->becomes(":x:ab")) << this->world.document();
  this->world.type(":z");
  EXPECT_TRUE(this->becomes(":x:ab:z")) << this->world.document();
  EXPECT_EQ(this->seen, ":");
}

TYPED_TEST_P(EventTapSuite, PassesEveryKeyWhileItIsSwitchedOff) {
  this->typeTriggerFor(KeyAttention::everyKey);
  ASSERT_TRUE(this->becomes(":"));
  this->tap().setEnabled(false);
  EXPECT_FALSE(this->tap().isEnabled());
  this->unwanted = "b:";
  this->world.type("ab:");
  EXPECT_TRUE(this->becomes(":ab:")) << this->world.document();
  EXPECT_EQ(this->seen, ":");
  this->unwanted.clear();
  this->seen.clear();
  this->tap().setEnabled(true);
  EXPECT_TRUE(this->tap().isEnabled());
  this->waitUntilSeen();
}

REGISTER_TYPED_TEST_SUITE_P(EventTapSuite, JudgesEveryKeyBehindTheOneThatAskedForIt,
                            JudgesKeptKeysInOrderAsIfTypedJustThen, PassesKeptKeysOnWhenItIsDestroyed,
                            PassesEveryKeyWhileItIsSwitchedOff);

}  // namespace tessarin::testing
