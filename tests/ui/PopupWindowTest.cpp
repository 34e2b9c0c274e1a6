#include <QApplication>
#include <cstdlib>

#include "Matchers.h"
#include "platform/qt/QtScreens.h"
#include "support/Eventually.h"
#include "support/desktop/XClient.h"
#include "ui/PopupContents.h"
#include "ui/PopupWindow.h"

namespace tessarin::ui {
namespace {

using testing::eventually;
using testing::popupWithRows;
using testing::withPicker;

/// A popup whose top left corner is at the pixel (200, 100) of the test program's display.
class PopupWindowTest : public ::testing::Test {
 protected:
  PopupWindowTest() {
    client.movePointer(0, 0);
    window.onRowClicked([this](int index) { rows.push_back(index); });
    window.onVariantClicked([this](int index) { variants.push_back(index); });
  }

  void show(const PopupContent& content) {
    const QSizeF size = testing::sizeOf(content);
    layout = PopupLayout(content, size);
    window.show(content, {200, 1024 - 100 - size.height(), size.width(), size.height()});
    ASSERT_TRUE(becomes([this] { return client.popup() == window.nativeWindow(); }));
  }
  template <class Condition>
  bool becomes(Condition condition) {
    return eventually(condition, [] { QApplication::processEvents(); });
  }
  void clickAt(QPointF point) {
    client.click(200 + static_cast<int>(point.x()), 100 + static_cast<int>(point.y()));
  }

  testing::XClient client{std::getenv("DISPLAY")};
  QtScreens screens;
  PopupWindow window{screens};
  PopupLayout layout;
  std::vector<int> rows;
  std::vector<int> variants;
};

TEST_F(PopupWindowTest, TellsTheRowThatIsClickedAndNothingOutsideRows) {
  const auto focused = client.focusedWindow();
  show(popupWithRows(8));
  clickAt(layout.header().center());
  clickAt(layout.footer().center());
  clickAt(layout.row(5, 0).center());
  EXPECT_TRUE(becomes([this] { return !rows.empty(); }));
  EXPECT_THAT(rows, ElementsAre(5));
  EXPECT_THAT(variants, ElementsAre());
  EXPECT_EQ(client.focusedWindow(), focused);
  EXPECT_FALSE(window.isActiveWindow());
}

TEST_F(PopupWindowTest, TheWheelMovesTheListAndClicksFollowIt) {
  show(withPicker(popupWithRows(8)));
  client.movePointer(300, 100 + static_cast<int>(layout.list().center().y()));
  client.press(XCB_BUTTON_INDEX_5);
  EXPECT_TRUE(becomes([this] { return window.scroll() == 36; })) << window.scroll();
  clickAt(layout.row(1, 36).center());
  EXPECT_TRUE(becomes([this] { return !rows.empty(); }));
  EXPECT_THAT(rows, ElementsAre(1));
}

TEST_F(PopupWindowTest, PaintedAheadShowsTheSame) {
  const auto picture = [this] { return window.grab().toImage(); };
  const PopupContent before = popupWithRows(3, 1);
  const PopupContent after = popupWithRows(3, 2);
  show(before);
  const QImage first = picture();
  show(after);
  const QImage second = picture();
  ASSERT_NE(first, second);
  window.prepare(before);
  EXPECT_EQ(picture(), second) << "not shown yet";
  show(before);
  EXPECT_EQ(picture(), first);
  show(after);
  EXPECT_EQ(picture(), second) << "something else was shown than was painted";
}

TEST_F(PopupWindowTest, LeavesItsCornersToACompositor) {
  show(popupWithRows(3));
  EXPECT_TRUE(becomes([this] { return !client.isInShape(window.nativeWindow(), 0, 0); }));
  window.hide();
  testing::XClient compositor(std::getenv("DISPLAY"));
  compositor.becomeCompositor();
  ASSERT_TRUE(becomes([this] { return screens.isComposited(); }));
  show(popupWithRows(3));
  EXPECT_TRUE(becomes([this] { return client.isInShape(window.nativeWindow(), 0, 0); }));
  EXPECT_LT(window.grab().toImage().pixelColor(160, 4).alpha(), 255);
}

}  // namespace
}  // namespace tessarin::ui
