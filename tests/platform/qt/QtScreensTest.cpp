#include <gmock/gmock.h>

#include <cstdlib>

#include "platform/qt/QtScreens.h"
#include "support/desktop/ChildProcess.h"
#include "support/desktop/XClient.h"

namespace tessarin::ui {
namespace {

using ::testing::ElementsAre;
using testing::XClient;

/// The display of the test program: 1280 x 1024 pixels, no window manager, scale 1.
class QtScreensTest : public ::testing::Test {
 protected:
  void TearDown() override {
    for (const char* name : {"left", "right"}) testing::run({"xrandr", "--delmonitor", name});
    client.setRootNumbers("_NET_WORKAREA", {});
    client.setRootNumbers("_NET_CURRENT_DESKTOP", {});
    client.setRootNumbers("_NET_ACTIVE_WINDOW", {});
  }
  /// The right one is the primary and lower than the left one.
  static void layOutTwoMonitors() {
    ASSERT_EQ(testing::run({"xrandr", "--setmonitor", "left", "640/300x900/300+0+0", "screen"}), 0);
    ASSERT_EQ(testing::run({"xrandr", "--setmonitor", "*right", "640/300x924/300+640+100", "none"}), 0);
  }

  XClient client{std::getenv("DISPLAY")};
  QtScreens screens;
};

TEST_F(QtScreensTest, ASingleMonitorIsTheWholeDisplay) {
  const Screen whole{{0, 0, 1280, 1024}, {0, 0, 1280, 1024}};
  EXPECT_THAT(screens.screens(), ElementsAre(whole));
  EXPECT_EQ(screens.mainScreen(), whole);
}

TEST_F(QtScreensTest, ThePrimaryMonitorComesFirstAndSetsTheHeight) {
  layOutTwoMonitors();
  const auto found = screens.screens();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].frame, (Rect{640, -100, 640, 924}));
  EXPECT_EQ(found[1].frame, (Rect{0, 24, 640, 900}));
}

TEST_F(QtScreensTest, PanelsAreLessThanTheVisibleFrame) {
  layOutTwoMonitors();
  client.setRootNumbers("_NET_CURRENT_DESKTOP", {1});
  client.setRootNumbers("_NET_WORKAREA", {0, 0, 10, 10, 0, 30, 1280, 994});
  const auto found = screens.screens();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].visibleFrame, found[0].frame) << "the panel ends above this monitor";
  EXPECT_EQ(found[1].visibleFrame, (Rect{0, 24, 640, 870}));
  client.setRootNumbers("_NET_CURRENT_DESKTOP", {});
  client.setRootNumbers("_NET_WORKAREA", {640, 100, 640, 924});
  EXPECT_EQ(screens.screens()[1].visibleFrame, found[1].frame) << "a work area that leaves nothing of it";
}

TEST_F(QtScreensTest, TheMainScreenHasTheActiveWindow) {
  layOutTwoMonitors();
  const auto found = screens.screens();
  ASSERT_EQ(found.size(), 2U);
  client.setRootNumbers("_NET_ACTIVE_WINDOW", {client.openWindow({20, 20, 200, 100})});
  EXPECT_EQ(screens.mainScreen(), found[1]);
  client.setRootNumbers("_NET_ACTIVE_WINDOW", {client.openWindow({700, 300, 200, 100})});
  EXPECT_EQ(screens.mainScreen(), found[0]);
  client.setRootNumbers("_NET_ACTIVE_WINDOW", {1});
  EXPECT_EQ(screens.mainScreen(), found[0]) << "a window that has gone";
}

TEST_F(QtScreensTest, ThePointerIsInScreenCoordinates) {
  client.movePointer(300, 200);
  EXPECT_EQ(screens.mouseLocation(), (Point{300, 824}));
}

}  // namespace
}  // namespace tessarin::ui
