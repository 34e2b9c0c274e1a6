#include <algorithm>
#include <thread>

#include "platform/qt/QtMainQueue.h"
#include "platform/qt/TestApplication.h"

namespace tessarin::testing {
namespace {

class QtMainQueueTest : public ::testing::Test {
 protected:
  QtMainQueueTest() { ensureApplication(); }

  /// Work that notes a number.
  MainQueue::Work note(int number) {
    return [this, number] { noted.push_back(number); };
  }
  bool untilNoted(std::size_t count) {
    return eventuallyInLoop([this, count] { return noted.size() >= count; });
  }

  std::vector<int> noted;
  ui::QtMainQueue queue;
};

TEST_F(QtMainQueueTest, RunsWorkLaterInTheOrderOfTheCallsFromAnyThread) {
  constexpr std::size_t count = 100;
  std::thread::id where;
  queue.async([this] { queue.async(note(1000)); });
  std::thread other([&] {
    for (std::size_t i = 0; i < count; ++i) queue.async(note(static_cast<int>(i)));
    queue.async([&] { where = std::this_thread::get_id(); });
  });
  other.join();
  EXPECT_TRUE(noted.empty());
  ASSERT_TRUE(untilNoted(count + 1));
  EXPECT_TRUE(std::ranges::is_sorted(noted));
  EXPECT_EQ(where, std::this_thread::get_id());
}

TEST_F(QtMainQueueTest, RunsDelayedWorkOnceAndNotTooEarly) {
  const auto begun = queue.now();
  queue.after(std::chrono::milliseconds(30), note(2));
  queue.after(std::chrono::milliseconds(10), note(1));
  ASSERT_TRUE(untilNoted(2));
  EXPECT_EQ(noted, (std::vector<int>{1, 2}));
  EXPECT_GE(queue.now() - begun, std::chrono::milliseconds(30));
}

TEST_F(QtMainQueueTest, RepeatsWorkAsLongAsTheTokenLives) {
  for (const bool endsItself : {false, true}) {
    noted.clear();
    Subscription token;
    token = queue.repeat(std::chrono::milliseconds(5), [&] {
      noted.push_back(1);
      if (endsItself) token.reset();
    });
    ASSERT_TRUE(untilNoted(endsItself ? 1 : 3));
    if (!endsItself) token.reset();
    const std::size_t count = noted.size();
    queue.after(std::chrono::milliseconds(25), note(2));
    ASSERT_TRUE(untilNoted(count + 1));
    EXPECT_EQ(noted.back(), 2);
    EXPECT_EQ(noted.size(), count + 1) << "ends itself: " << endsItself;
  }
}

TEST_F(QtMainQueueTest, DropsWhatWaitsWhenItGoes) {
  Subscription token;
  {
    ui::QtMainQueue going;
    going.async(note(1));
    going.after(std::chrono::milliseconds(1), note(1));
    token = going.repeat(std::chrono::milliseconds(1), note(1));
  }
  queue.after(std::chrono::milliseconds(10), note(2));
  ASSERT_TRUE(untilNoted(1));
  EXPECT_EQ(noted, std::vector<int>{2});
}

}  // namespace
}  // namespace tessarin::testing
