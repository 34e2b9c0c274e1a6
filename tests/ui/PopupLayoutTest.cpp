#include <gmock/gmock.h>

#include "ui/PopupContents.h"
#include "ui/PopupLayout.h"

namespace tessarin::ui {
namespace {

using ::testing::Optional;
using testing::popupWithRows;
using testing::withPicker;

PopupLayout layoutOf(const PopupContent& content) {
  return {content, testing::sizeOf(content)};
}

TEST(PopupLayout, ShowsEveryRowWholeWithoutAPicker) {
  for (const int rows : {1, 8}) {
    const PopupLayout layout = layoutOf(popupWithRows(rows));
    EXPECT_EQ(layout.maxScroll(), 0);
    EXPECT_EQ(layout.row(0, 0).top(), layout.list().top());
    EXPECT_EQ(layout.row(rows - 1, 0).bottom(), layout.list().bottom());
    EXPECT_EQ(layout.footer().bottom(), layout.size().height());
  }
}

TEST(PopupLayout, CentresTheSelectedRowAsFarAsTheListReaches) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  EXPECT_EQ(layout.scrollCentring(0), 0);
  EXPECT_EQ(layout.scrollCentring(7), layout.maxScroll());
  const double scroll = layout.scrollCentring(4);
  EXPECT_EQ(layout.row(4, scroll).center().y(), layout.list().center().y());
}

TEST(PopupLayout, FindsRowsInsideTheListAndVariants) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  const double scroll = 18;
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 17}, scroll), Optional(0));
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 18}, scroll), Optional(1));
  EXPECT_EQ(layout.rowAt(layout.picker().center(), scroll), std::nullopt);
  EXPECT_EQ(layout.rowAt(layout.footer().center(), scroll), std::nullopt);
  for (int i = 0; i < 6; ++i) EXPECT_THAT(layout.variantAt(layout.variant(i).center()), Optional(i));
  EXPECT_EQ(layout.variantAt(layout.variant(0).topRight() + QPointF(2, 2)), std::nullopt) << "between cells";
}

}  // namespace
}  // namespace tessarin::ui
