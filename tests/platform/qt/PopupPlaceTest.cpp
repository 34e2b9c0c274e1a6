#include "platform/CoordinateSpace.h"
#include "support/Eventually.h"
#include "support/desktop/PrivateDisplay.h"
#include "support/desktop/XClient.h"
#include "ui/PopupChild.h"

namespace tessarin::testing {
namespace {

/// Two monitors side by side, the second one lower, as `xrandr --setmonitor` lays them out.
void layOutMonitors(const PrivateDisplay& display) {
  ASSERT_EQ(display.run({"xrandr", "--setmonitor", "*left", "1280/340x1024/270+0+0", "screen"}), 0);
  ASSERT_EQ(display.run({"xrandr", "--setmonitor", "right", "1320/340x900/270+1280+124", "none"}), 0);
}

/// Clicks the first row until it is seen; Qt has then dealt with everything about showing the window, too.
bool isClickSeen(XClient& client, xcb_window_t window, double scale) {
  const Rect frame = client.frameOf(window);
  client.click(static_cast<int>(frame.x + 100 * scale), static_cast<int>(frame.y + 50 * scale));
  return client.titleOf(window) == clickedTitle;
}

struct Place {
  int x;
  int y;
  int rows;
};

class PopupPlace : public ::testing::TestWithParam<int> {};

TEST_P(PopupPlace, IsTheFrameGivenToThePixel) {
  const PrivateDisplay display("2600x1024x24");
  layOutMonitors(display);
  XClient client(display.name());
  client.setDpi(GetParam());
  const double scale = GetParam() / 96.0;
  const CoordinateSpace space(scale, 1024 / scale);
  for (const Place& place : {Place{0, 0, 1}, Place{101, 67, 8}, Place{1277, 500, 3}, Place{1413, 125, 8}}) {
    const Rect pixels{static_cast<double>(place.x), static_cast<double>(place.y), 320 * scale,
                      (64 + 36 * place.rows) * scale};
    const Rect frame = space.flipped(space.toPoints(pixels));
    const ChildProcess child = startPopupChild(display.variable(), place.rows, {frame.x, frame.y});
    ASSERT_TRUE(eventually([&] { return client.popup().has_value(); }));
    const auto window = *client.popup();
    ASSERT_TRUE(eventually([&] { return isClickSeen(client, window, scale); }));
    EXPECT_EQ(client.frameOf(window), pixels);
    EXPECT_TRUE(client.isOverrideRedirect(window));
    // Nobody composes windows here, so the corners are cut off.
    EXPECT_FALSE(client.isInShape(window, 0, 0));
    EXPECT_TRUE(client.isInShape(window, static_cast<int>(4 * scale), static_cast<int>(4 * scale)));
  }
}

INSTANTIATE_TEST_SUITE_P(Dpi, PopupPlace, ::testing::Values(96, 144, 192));

}  // namespace
}  // namespace tessarin::testing
