#include <gtest/gtest.h>

#include <QAccessible>

#include "ui/settings/BarChart.h"

namespace tessarin::ui {
namespace {

TEST(BarChartTest, BarsStandForTheirCountsAndAreReadSo) {
  BarChart chart;
  chart.resize(500, BarChart::chartHeight);
  chart.setBars({{"Mon", "Monday", 0}, {"Tue", "Tuesday", 1}, {"Wed", "Wednesday", 5000}});
  EXPECT_TRUE(chart.barRect(0).isEmpty());
  EXPECT_GE(chart.barRect(1).height(), 2) << "one is seen beside thousands";
  EXPECT_GT(chart.barRect(2).height(), 20 * chart.barRect(1).height());
  EXPECT_EQ(chart.barRect(1).bottom(), chart.barRect(2).bottom());
  const QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&chart);
  EXPECT_EQ(accessible->role(), QAccessible::Chart);
  EXPECT_EQ(accessible->text(QAccessible::Description),
            "Day: Monday, Count: 0; Day: Tuesday, Count: 1; Day: Wednesday, Count: 5000");
}

TEST(ChartAxis, HasRoundStepsOfWholeCounts) {
  EXPECT_EQ(ChartAxis::reaching(0, 4), (ChartAxis{1, 1}));
  EXPECT_EQ(ChartAxis::reaching(3, 4), (ChartAxis{1, 3}));
  EXPECT_EQ(ChartAxis::reaching(4, 4), (ChartAxis{1, 4}));
  EXPECT_EQ(ChartAxis::reaching(5, 4), (ChartAxis{2, 6}));
  EXPECT_EQ(ChartAxis::reaching(25, 4), (ChartAxis{10, 30}));
  EXPECT_EQ(ChartAxis::reaching(99, 4), (ChartAxis{50, 100}));
  EXPECT_EQ(ChartAxis::reaching(1000, 1), (ChartAxis{1000, 1000}));
  EXPECT_EQ(ChartAxis::reaching(10001, 4), (ChartAxis{5000, 15000}));
}

}  // namespace
}  // namespace tessarin::ui
