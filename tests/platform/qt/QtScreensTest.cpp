#include <cstdlib>

#include "platform/qt/QtScreens.h"
#include "platform/qt/TestApplication.h"
#include "support/desktop/ChildProcess.h"
#include "support/desktop/XClient.h"

namespace tessarin::testing {
namespace {

using ui::QtScreens;

/// The display of the test program: 1280 x 1024 pixels, no window manager, scale 1.
class QtScreensTest : public ::testing::Test {
 protected:
  ~QtScreensTest() override {
    for (const char* name : {"left", "right"}) testing::run({"xrandr", "--delmonitor", name});
    for (const char* name : {"_NET_WORKAREA", "_NET_CURRENT_DESKTOP", "_NET_ACTIVE_WINDOW"}) {
      client.setRootNumbers(name, {});
    }
  }
  /// The right one is the primary and lower than the left one.
  void layOut() {
    ASSERT_EQ(testing::run({"xrandr", "--setmonitor", "left", "640/300x900/300+0+0", "screen"}), 0);
    ASSERT_EQ(testing::run({"xrandr", "--setmonitor", "*right", "640/300x924/300+640+100", "none"}), 0);
    ASSERT_TRUE(eventuallyInLoop([this] { return screens.screens().size() == 2; }));
  }
  /// Once the news of it has come.
  bool hasVisibleFrame(std::size_t index, const Rect& frame) {
    return eventuallyInLoop([&] { return screens.screens().at(index).visibleFrame == frame; });
  }
  bool becomesMain(std::size_t index) {
    return eventuallyInLoop([&] { return screens.mainScreen() == screens.screens().at(index); });
  }

  XClient client{std::getenv("DISPLAY")};
  QtScreens screens;
};

TEST_F(QtScreensTest, KnowsMonitorsFocusAndPointer) {
  client.movePointer(300, 200);
  EXPECT_TRUE(eventuallyInLoop([this] { return screens.mouseLocation() == Point{300, 824}; }));
  EXPECT_EQ(screens.space().flipped(Rect{0, 0, 10, 10}), (Rect{0, 1014, 10, 10}));
  layOut();
  EXPECT_EQ(screens.space().flipped(Rect{0, 0, 10, 10}), (Rect{0, 914, 10, 10}));
  EXPECT_EQ(screens.screens()[0].frame, (Rect{640, -100, 640, 924}));
  EXPECT_EQ(screens.screens()[1].frame, (Rect{0, 24, 640, 900}));
  EXPECT_TRUE(becomesMain(0));
  client.setRootNumbers("_NET_ACTIVE_WINDOW", {client.openWindow({20, 300, 200, 100})});
  EXPECT_TRUE(becomesMain(1));
  client.setRootNumbers("_NET_ACTIVE_WINDOW", {client.openWindow({700, 300, 200, 100})});
  EXPECT_TRUE(becomesMain(0));
}

TEST_F(QtScreensTest, PanelsAreLessThanTheVisibleFrame) {
  layOut();
  const auto whole = screens.screens();
  for (const Screen& screen : whole) EXPECT_EQ(screen.visibleFrame, screen.frame) << "there are no panels";
  client.setRootNumbers("_NET_CURRENT_DESKTOP", {1});
  client.setRootNumbers("_NET_WORKAREA", {0, 0, 10, 10, 0, 30, 1280, 994});
  EXPECT_TRUE(hasVisibleFrame(1, {0, 24, 640, 870}));
  EXPECT_TRUE(hasVisibleFrame(0, whole[0].frame)) << "the panel ends above this monitor";
  client.setRootNumbers("_NET_CURRENT_DESKTOP", {});
  client.setRootNumbers("_NET_WORKAREA", {640, 100, 640, 924});
  EXPECT_TRUE(hasVisibleFrame(1, whole[1].frame)) << "a work area that leaves nothing of it";
}

TEST_F(QtScreensTest, FollowsTheCompositor) {
  {
    XClient compositor(std::getenv("DISPLAY"));
    compositor.becomeCompositor();
    EXPECT_TRUE(eventuallyInLoop([this] { return screens.isComposited(); }));
  }
  EXPECT_TRUE(eventuallyInLoop([this] { return !screens.isComposited(); }));
}

}  // namespace
}  // namespace tessarin::testing
