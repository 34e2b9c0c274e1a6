#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <cstdint>
#include <cstdlib>

#include "platform/qt/QtConnection.h"
#include "platform/qt/QtScreens.h"
#include "platform/qt/TestApplication.h"
#include "support/FakeScreens.h"
#include "support/ScreensSuite.h"
#include "support/desktop/ChildProcess.h"
#include "support/desktop/XClient.h"

namespace tessarin::testing {
namespace {

using ::testing::ElementsAre;
using ui::QtScreens;

/// The display of the test program: 1280 x 1024 pixels, no window manager, scale 1.
class Monitors {
 public:
  ~Monitors() {
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
  void focus(std::size_t number) {
    const auto window = client.openWindow({number == 0 ? 700.0 : 20.0, 300, 200, 100});
    client.setRootNumbers("_NET_ACTIVE_WINDOW", {window});
  }
  void movePointer(Point point) {
    client.movePointer(static_cast<int>(point.x), 1024 - static_cast<int>(point.y));
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

class FakeWorld {
 public:
  Screens& screens() { return fake_; }
  void layOut() {
    fake_.all.clear();
    for (const Rect& frame : {Rect{640, -100, 640, 924}, Rect{0, 24, 640, 900}}) {
      fake_.all.push_back({frame, frame});
    }
  }
  void focus(std::size_t number) { fake_.main = fake_.all.at(number); }
  void movePointer(Point point) { fake_.mouse = point; }

 private:
  FakeScreens fake_;
};

class QtScreensTest : public ::testing::Test {
 protected:
  Monitors monitors;
  XClient& client = monitors.client;
  QtScreens& screens() { return monitors.screens(); }
};

TEST_F(QtScreensTest, PanelsAreLessThanTheVisibleFrame) {
  monitors.layOut();
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
  monitors.layOut();
  EXPECT_EQ(screens().screens().size(), 2U);
  EXPECT_EQ(screens().space().flipped(Rect{0, 0, 10, 10}), (Rect{0, 914, 10, 10}));
  {
    XClient compositor(std::getenv("DISPLAY"));
    compositor.becomeCompositor();
    EXPECT_TRUE(screens().isComposited());
  }
  EXPECT_TRUE(eventuallyInLoop([this] { return !screens().isComposited(); }));
}

INSTANTIATE_TYPED_TEST_SUITE_P(Qt, ScreensSuite, ::testing::Types<Monitors>);
INSTANTIATE_TYPED_TEST_SUITE_P(Fake, ScreensSuite, ::testing::Types<FakeWorld>);

}  // namespace
}  // namespace tessarin::testing
