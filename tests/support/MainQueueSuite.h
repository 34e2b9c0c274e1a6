#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <thread>
#include <vector>

#include "platform/MainQueue.h"

namespace tessarin::testing {

/// How a MainQueue behaves, whoever implements it. `World` offers `MainQueue& queue()` and
/// `bool until(condition)`, which lets queued work happen, and time pass, until the condition holds; false
/// when it does not come to hold.
template <class World>
class MainQueueSuite : public ::testing::Test {
 protected:
  MainQueue& queue() { return world.queue(); }
  /// Work that notes a number.
  MainQueue::Work note(int number) {
    return [this, number] { noted.push_back(number); };
  }
  bool untilNoted(std::size_t count) {
    return world.until([this, count] { return noted.size() >= count; });
  }

  std::vector<int> noted;
  World world;
};

TYPED_TEST_SUITE_P(MainQueueSuite);

TYPED_TEST_P(MainQueueSuite, RunsWorkLaterInTheOrderOfTheCalls) {
  this->queue().async([this] { this->queue().async(this->note(3)); });
  this->queue().async(this->note(1));
  this->queue().async(this->note(2));
  EXPECT_TRUE(this->noted.empty());
  ASSERT_TRUE(this->untilNoted(3));
  EXPECT_EQ(this->noted, (std::vector<int>{1, 2, 3}));
}

TYPED_TEST_P(MainQueueSuite, TakesWorkFromOtherThreads) {
  constexpr int count = 100;
  std::thread::id where;
  std::thread other([&] {
    for (int i = 0; i < count; ++i) this->queue().async(this->note(i));
    this->queue().async([&] { where = std::this_thread::get_id(); });
  });
  other.join();
  ASSERT_TRUE(this->world.until([&] { return where != std::thread::id(); }));
  EXPECT_EQ(where, std::this_thread::get_id());
  ASSERT_EQ(this->noted.size(), static_cast<std::size_t>(count));
  EXPECT_TRUE(std::ranges::is_sorted(this->noted));
}

TYPED_TEST_P(MainQueueSuite, RunsDelayedWorkOnceAndNotTooEarly) {
  const auto begun = this->queue().now();
  this->queue().after(std::chrono::milliseconds(30), this->note(2));
  this->queue().after(std::chrono::milliseconds(10), this->note(1));
  ASSERT_TRUE(this->untilNoted(2));
  EXPECT_EQ(this->noted, (std::vector<int>{1, 2}));
  EXPECT_GE(this->queue().now() - begun, std::chrono::milliseconds(30));
}

TYPED_TEST_P(MainQueueSuite, RepeatsWorkAsLongAsTheTokenLives) {
  for (const bool endsItself : {false, true}) {
    this->noted.clear();
    Subscription token;
    token = this->queue().repeat(std::chrono::milliseconds(5), [&] {
      this->noted.push_back(1);
      if (endsItself) token.reset();
    });
    ASSERT_TRUE(this->untilNoted(endsItself ? 1 : 3));
    if (!endsItself) token.reset();
    const std::size_t count = this->noted.size();
    this->queue().after(std::chrono::milliseconds(25), this->note(2));
    ASSERT_TRUE(this->untilNoted(count + 1));
    EXPECT_EQ(this->noted.back(), 2);
    EXPECT_EQ(this->noted.size(), count + 1) << "ends itself: " << endsItself;
  }
}

REGISTER_TYPED_TEST_SUITE_P(MainQueueSuite, RunsWorkLaterInTheOrderOfTheCalls, TakesWorkFromOtherThreads,
                            RunsDelayedWorkOnceAndNotTooEarly, RepeatsWorkAsLongAsTheTokenLives);

}  // namespace tessarin::testing
