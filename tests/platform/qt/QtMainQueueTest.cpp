#include "platform/qt/QtMainQueue.h"
#include "platform/qt/TestApplication.h"
#include "support/MainQueueSuite.h"
#include "support/ManualMainQueue.h"

namespace tessarin::testing {
namespace {

class QtWorld {
 public:
  MainQueue& queue() { return *queue_; }
  bool until(auto condition) { return eventuallyInLoop(condition); }

 private:
  std::unique_ptr<ui::QtMainQueue> queue_ = (ensureApplication(), std::make_unique<ui::QtMainQueue>());
};

class ManualWorld {
 public:
  MainQueue& queue() { return queue_; }
  bool until(auto condition) {
    constexpr int longest = 1000;
    for (int i = 0; i < longest && !condition(); ++i) queue_.advance(std::chrono::milliseconds(1));
    return condition();
  }

 private:
  ManualMainQueue queue_;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, MainQueueSuite, QtWorld);
INSTANTIATE_TYPED_TEST_SUITE_P(Manual, MainQueueSuite, ManualWorld);

TEST(QtMainQueue, DropsWhatWaitsWhenItGoes) {
  ensureApplication();
  int runs = 0;
  Subscription token;
  {
    ui::QtMainQueue queue;
    queue.async([&runs] { ++runs; });
    queue.after(std::chrono::milliseconds(1), [&runs] { ++runs; });
    token = queue.repeat(std::chrono::milliseconds(1), [&runs] { ++runs; });
  }
  ui::QtMainQueue another;
  bool isOver = false;
  another.after(std::chrono::milliseconds(10), [&isOver] { isOver = true; });
  ASSERT_TRUE(eventuallyInLoop([&isOver] { return isOver; }));
  EXPECT_EQ(runs, 0);
}

}  // namespace
}  // namespace tessarin::testing
