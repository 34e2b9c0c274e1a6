#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <cstdint>
#include <cstdlib>

#include "platform/qt/QtConnection.h"
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
    client.setRootNumbers("_NET_WORKAREA", {});
    client.setRootNumbers("_NET_CURRENT_DESKTOP", {});
    client.setRootNumbers("_NET_ACTIVE_WINDOW", {});
  }
  /// With everything taken in that the server has told so far.
  QtScreens& screens() {
    client.setRootNumbers(mark, {++marks_});
    EXPECT_TRUE(eventuallyInLoop([this] { return seen_.count == marks_; }));
    return screens_;
  }
  /// The right one is the primary and lower than the left one.
  static void layOut() {
    ASSERT_EQ(testing::run({"xrandr", "--setmonitor", "left", "640/300x900/300+0+0", "screen"}), 0);
    ASSERT_EQ(testing::run({"xrandr", "--setmonitor", "*right", "640/300x924/300+640+100", "none"}), 0);
  }

  XClient client{std::getenv("DISPLAY")};

 private:
  static constexpr const char* mark = "_TESSARIN_TEST_MARK";
  /// Counts the marks that have come through.
  struct Seen final : QAbstractNativeEventFilter {
    Seen() { qGuiApp->installNativeEventFilter(this); }
    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
      const auto* event = static_cast<const xcb_property_notify_event_t*>(message);
      if ((event->response_type & 0x7f) == XCB_PROPERTY_NOTIFY && event->atom == atom) ++count;
      return false;
    }
    const xcb_atom_t atom = ui::qtConnection()->atom(mark);
    std::uint32_t count = 0;
  };
  Seen seen_;
  std::uint32_t marks_ = 0;
  QtScreens screens_;
};

TEST_F(QtScreensTest, KnowsMonitorsFocusAndPointer) {
  client.movePointer(300, 200);
  EXPECT_EQ(screens().mouseLocation(), (Point{300, 824}));
  layOut();
  const auto found = screens().screens();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].frame, (Rect{640, -100, 640, 924}));
  EXPECT_EQ(found[1].frame, (Rect{0, 24, 640, 900}));
  for (const Screen& screen : found) EXPECT_EQ(screen.visibleFrame, screen.frame) << "there are no panels";
  EXPECT_EQ(screens().mainScreen(), found[0]);
  client.setRootNumbers("_NET_ACTIVE_WINDOW", {client.openWindow({20, 300, 200, 100})});
  EXPECT_EQ(screens().mainScreen(), found[1]);
  client.setRootNumbers("_NET_ACTIVE_WINDOW", {client.openWindow({700, 300, 200, 100})});
  EXPECT_EQ(screens().mainScreen(), found[0]);
}

TEST_F(QtScreensTest, PanelsAreLessThanTheVisibleFrame) {
  layOut();
  client.setRootNumbers("_NET_CURRENT_DESKTOP", {1});
  client.setRootNumbers("_NET_WORKAREA", {0, 0, 10, 10, 0, 30, 1280, 994});
  const auto found = screens().screens();
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].visibleFrame, found[0].frame) << "the panel ends above this monitor";
  EXPECT_EQ(found[1].visibleFrame, (Rect{0, 24, 640, 870}));
  client.setRootNumbers("_NET_CURRENT_DESKTOP", {});
  client.setRootNumbers("_NET_WORKAREA", {640, 100, 640, 924});
  EXPECT_EQ(screens().screens()[1].visibleFrame, found[1].frame) << "a work area that leaves nothing of it";
}

TEST_F(QtScreensTest, FollowsTheMonitorsAndTheCompositor) {
  EXPECT_EQ(screens().screens().size(), 1U);
  EXPECT_EQ(screens().space().flipped(Rect{0, 0, 10, 10}), (Rect{0, 1014, 10, 10}));
  layOut();
  EXPECT_EQ(screens().screens().size(), 2U);
  EXPECT_EQ(screens().space().flipped(Rect{0, 0, 10, 10}), (Rect{0, 914, 10, 10}));
  {
    XClient compositor(std::getenv("DISPLAY"));
    compositor.becomeCompositor();
    EXPECT_TRUE(screens().isComposited());
  }
  EXPECT_TRUE(eventuallyInLoop([this] { return !screens().isComposited(); }));
}

}  // namespace
}  // namespace tessarin::testing
