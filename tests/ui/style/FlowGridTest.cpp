#include <gtest/gtest.h>

#include <QWidget>

#include "platform/qt/TestApplication.h"
#include "ui/style/FlowGrid.h"

namespace tessarin::ui {
namespace {

TEST(FlowGrid, SharesTheWidthAmongItsColumnsFromWhereReadingBegins) {
  testing::ensureApplication();
  const struct {
    int width;
    int columns;
  } cases[] = {{247, 1}, {248, 2}, {590, 4}};
  for (const auto& [width, columns] : cases) {
    SCOPED_TRACE(width);
    QWidget window;
    FlowGrid* grid = new FlowGrid({120, 8, 6}, &window);
    QList<QWidget*> cells;
    for (int index = 0; index < 12; ++index) {
      cells << new QWidget;
      cells.last()->setMinimumHeight(20);
      grid->addWidget(cells.last());
    }
    window.resize(width, grid->heightForWidth(width));
    grid->activate();
    EXPECT_EQ(cells[0]->geometry().left(), 0);
    EXPECT_EQ(cells[columns - 1]->geometry().right() + 1, width);
    EXPECT_EQ(cells[columns]->pos(), QPoint(0, cells[0]->height() + 6)) << "the next row";
    EXPECT_EQ(cells[11]->geometry().bottom() + 1, window.height());
    window.setLayoutDirection(Qt::RightToLeft);
    grid->activate();
    EXPECT_EQ(cells[0]->geometry().right() + 1, width);
  }
}

}  // namespace
}  // namespace tessarin::ui
