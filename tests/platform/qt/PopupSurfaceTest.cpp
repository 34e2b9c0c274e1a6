#include <cstdlib>

#include "platform/qt/QtScreens.h"
#include "platform/qt/TestApplication.h"
#include "support/desktop/XClient.h"
#include "ui/PopupContents.h"
#include "ui/PopupWindow.h"

namespace tessarin::testing {
namespace {

/// On the display of the test program: 1024 pixels high, scale 1.
TEST(PopupSurface, TellsTheRowAndTheVariantThatAreClickedAndMayBeHiddenByIt) {
  XClient client(std::getenv("DISPLAY"));
  client.movePointer(0, 0);
  ui::QtScreens screens;
  ui::PopupWindow window(screens);
  const PopupContent picker = withPicker(popupWithRows(8));
  const ui::PopupLayout layout(picker, ui::PopupLayout::sizeFor(8));
  const auto click = [&](QPointF point) {
    client.click(10 + static_cast<int>(point.x()), 652 + static_cast<int>(point.y()));
  };
  std::vector<int> clicked;
  window.onVariantClicked([&](int index) { clicked.push_back(100 + index); });
  window.onRowClicked([&](int index) {
    clicked.push_back(index);
    window.hide();
    window.onRowClicked({});
  });
  window.show(picker, {10, 20, 320, 352});
  ASSERT_TRUE(eventuallyInLoop([&] { return client.popup().has_value(); }));
  click(layout.variant(4).center());
  click(layout.row(5, 0).center());
  EXPECT_TRUE(eventuallyInLoop([&] { return !client.popup(); }));
  EXPECT_EQ(clicked, (std::vector<int>{104, 5}));
}

}  // namespace
}  // namespace tessarin::testing
