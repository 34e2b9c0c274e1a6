#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
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
  using Milliseconds = std::chrono::milliseconds;

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
  this->queue().after(typename TestFixture::Milliseconds(30), this->note(2));
  this->queue().after(typename TestFixture::Milliseconds(10), this->note(1));
  ASSERT_TRUE(this->untilNoted(2));
  EXPECT_EQ(this->noted, (std::vector<int>{1, 2}));
  EXPECT_GE(this->queue().now() - begun, typename TestFixture::Milliseconds(30));
}

TYPED_TEST_P(MainQueueSuite, RepeatsWorkAsLongAsTheTokenLives) {
  Subscription token = this->queue().repeat(typename TestFixture::Milliseconds(5), this->note(1));
  ASSERT_TRUE(this->untilNoted(3));
  token.reset();
  const std::size_t count = this->noted.size();
  this->queue().after(typename TestFixture::Milliseconds(20), this->note(2));
  ASSERT_TRUE(this->untilNoted(count + 1));
  EXPECT_EQ(this->noted.back(), 2);
  EXPECT_EQ(this->noted.size(), count + 1);
}

TYPED_TEST_P(MainQueueSuite, LetsRepeatedWorkEndItself) {
  Subscription token;
  token = this->queue().repeat(typename TestFixture::Milliseconds(5), [&] {
    this->noted.push_back(1);
    token.reset();
  });
  this->queue().after(typename TestFixture::Milliseconds(25), this->note(2));
  ASSERT_TRUE(this->untilNoted(2));
  EXPECT_EQ(this->noted, (std::vector<int>{1, 2}));
}

TYPED_TEST_P(MainQueueSuite, LetsGoOfWorkThatHasRun) {
  const auto owner = std::make_shared<int>(1);
  this->queue().async([owner] {});
  this->queue().after(typename TestFixture::Milliseconds(1), [owner] {});
  {
    const Subscription token = this->queue().repeat(typename TestFixture::Milliseconds(5), [owner] {});
  }
  EXPECT_TRUE(this->world.until([&] { return owner.use_count() == 1; }));
}

REGISTER_TYPED_TEST_SUITE_P(MainQueueSuite, RunsWorkLaterInTheOrderOfTheCalls, TakesWorkFromOtherThreads,
                            RunsDelayedWorkOnceAndNotTooEarly, RepeatsWorkAsLongAsTheTokenLives,
                            LetsRepeatedWorkEndItself, LetsGoOfWorkThatHasRun);

}  // namespace tessarin::testing
