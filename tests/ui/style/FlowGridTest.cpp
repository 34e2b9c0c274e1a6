#include <gtest/gtest.h>

#include <QWidget>

#include "platform/qt/TestApplication.h"
#include "support/CaseName.h"
#include "ui/style/FlowGrid.h"

namespace tessarin::ui {
namespace {

struct GridCase {
  const char* name;
  int width;
  int columns;
};

void PrintTo(const GridCase& grid, std::ostream* out) {
  *out << grid.width << " wide";
}

class FlowGridTest : public ::testing::TestWithParam<GridCase> {
 protected:
  FlowGridTest() {
    testing::ensureApplication();
    for (int index = 0; index < 12; ++index) {
      cells << new QWidget;
      cells.last()->setMinimumHeight(20);
      grid->addWidget(cells.last());
    }
    window.resize(GetParam().width, grid->heightForWidth(GetParam().width));
  }
  QRect place(int index) const { return cells[index]->geometry(); }

  QWidget window;
  FlowGrid* grid = new FlowGrid({120, 8, 6}, &window);
  QList<QWidget*> cells;
};

TEST_P(FlowGridTest, columnsShareTheWidthFromEdgeToEdge) {
  grid->activate();
  const int columns = GetParam().columns;
  EXPECT_EQ(place(0).left(), 0);
  EXPECT_EQ(place(columns - 1).right() + 1, GetParam().width);
  EXPECT_EQ(place(columns).topLeft(), QPoint(0, place(0).height() + 6)) << "the next row";
  for (int column = 1; column < columns; ++column) {
    EXPECT_EQ(place(column).left() - place(column - 1).right() - 1, 8);
    EXPECT_NEAR(place(column).width(), place(0).width(), 1);
  }
  EXPECT_EQ(place(11).bottom() + 1, window.height());
}

TEST_P(FlowGridTest, beginsAtTheRightInARightToLeftWindow) {
  window.setLayoutDirection(Qt::RightToLeft);
  grid->activate();
  EXPECT_EQ(place(0).right() + 1, GetParam().width);
  EXPECT_EQ(place(GetParam().columns - 1).left(), 0);
}

INSTANTIATE_TEST_SUITE_P(Widths, FlowGridTest,
                         ::testing::Values(GridCase{"justNotTwo", 247, 1}, GridCase{"justTwo", 248, 2},
                                           GridCase{"fourWithRest", 590, 4}),
                         testing::CaseName());

}  // namespace
}  // namespace tessarin::ui
