#include <gmock/gmock.h>

#include "ui/PopupContents.h"
#include "ui/PopupLayout.h"

namespace tessarin::ui {
namespace {

using ::testing::Optional;
using testing::popupWithRows;
using testing::withPicker;

PopupLayout layoutOf(const PopupContent& content) {
  return {content, PopupLayout::sizeFor(static_cast<int>(content.rows.size()))};
}

class PopupLayoutOfRows : public ::testing::TestWithParam<int> {};

TEST_P(PopupLayoutOfRows, FillsThePopupFromEdgeToEdge) {
  for (const bool hasPicker : {false, true}) {
    const PopupContent content =
        hasPicker ? withPicker(popupWithRows(GetParam())) : popupWithRows(GetParam());
    const PopupLayout layout = layoutOf(content);
    EXPECT_EQ(layout.header().top(), 0);
    EXPECT_EQ(layout.footer().bottom(), layout.size().height());
    const double dividers = hasPicker && layout.list().height() > 0 ? 3 : 2;
    EXPECT_EQ(layout.header().height() + layout.picker().height() + layout.list().height() +
                  layout.footer().height() + dividers,
              layout.size().height());
  }
}

TEST_P(PopupLayoutOfRows, ShowsEveryRowWholeWithoutAPicker) {
  const PopupLayout layout = layoutOf(popupWithRows(GetParam()));
  EXPECT_EQ(layout.size(), QSizeF(320, 64 + 36 * GetParam()));
  EXPECT_EQ(layout.maxScroll(), 0);
  EXPECT_EQ(layout.row(0, 0).top(), layout.list().top());
  EXPECT_EQ(layout.row(GetParam() - 1, 0).bottom(), layout.list().bottom());
}

TEST_P(PopupLayoutOfRows, KeepsThePickersCellsAboveTheFooter) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(GetParam())));
  EXPECT_GE(layout.variant(0).top(), layout.header().bottom() + 1);
  EXPECT_LE(layout.variant(5).bottom(), layout.footer().top() - 1);
  EXPECT_EQ(layout.variant(0).size(), QSizeF(36, 36));
  EXPECT_LE(layout.variant(5).right(), layout.size().width() - 12);
}

INSTANTIATE_TEST_SUITE_P(Rows, PopupLayoutOfRows, ::testing::Values(1, 2, 3, 8));

TEST(PopupLayout, MoreThanEightRowsScrollInTheRoomOfEight) {
  const PopupLayout layout = layoutOf(popupWithRows(12));
  EXPECT_EQ(layout.size().height(), 352);
  EXPECT_EQ(layout.maxScroll(), 4 * 36);
}

TEST(PopupLayout, CentresTheSelectedRowAsFarAsTheListReaches) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  EXPECT_EQ(layout.scrollCentring(0), 0);
  EXPECT_EQ(layout.scrollCentring(7), layout.maxScroll());
  const double scroll = layout.scrollCentring(4);
  EXPECT_EQ(layout.row(4, scroll).center().y(), layout.list().center().y());
}

TEST(PopupLayout, HasNoFooterWithoutRowsAndNoHeaderWithoutAQuery) {
  EXPECT_TRUE(layoutOf(popupWithRows(0)).footer().isNull());
  PopupContent content = popupWithRows(2);
  content.query.clear();
  EXPECT_TRUE(layoutOf(content).header().isNull());
  EXPECT_EQ(layoutOf(content).list().top(), 0);
}

TEST(PopupLayout, FindsTheRowUnderAPoint) {
  const PopupLayout layout = layoutOf(popupWithRows(8));
  const double top = layout.list().top();
  struct Case {
    QPointF point;
    std::optional<int> row;
  };
  for (const Case& c :
       {Case{{5, top}, 0}, Case{{5, top + 35.9}, 0}, Case{{319, top + 36}, 1}, Case{{160, top + 287}, 7},
        Case{{160, top + 288}, std::nullopt}, Case{{160, top - 0.1}, std::nullopt},
        Case{{-1, top}, std::nullopt}, Case{{320, top}, std::nullopt}}) {
    EXPECT_EQ(layout.rowAt(c.point, 0), c.row) << c.point.x() << "," << c.point.y();
  }
}

TEST(PopupLayout, FindsAScrolledRowOnlyInsideTheList) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  const double scroll = 18;
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 17}, scroll), Optional(0));
  EXPECT_THAT(layout.rowAt({50, layout.list().top() + 18}, scroll), Optional(1));
  EXPECT_EQ(layout.rowAt(layout.picker().center(), scroll), std::nullopt);
  EXPECT_EQ(layout.rowAt(layout.footer().center(), scroll), std::nullopt);
}

TEST(PopupLayout, FindsTheVariantUnderAPoint) {
  const PopupLayout layout = layoutOf(withPicker(popupWithRows(8)));
  for (int i = 0; i < 6; ++i) EXPECT_THAT(layout.variantAt(layout.variant(i).center()), Optional(i));
  EXPECT_EQ(layout.variantAt(layout.variant(0).topRight() + QPointF(2, 2)), std::nullopt) << "between cells";
  EXPECT_EQ(layoutOf(popupWithRows(8)).variantAt(layout.variant(0).center()), std::nullopt) << "no picker";
}

}  // namespace
}  // namespace tessarin::ui
