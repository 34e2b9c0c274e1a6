#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

#include "ui/settings/ChartAxis.h"

namespace tessarin::ui {

/// Counts of days as bars side by side, the first one where reading begins, over an axis that fits them by
/// itself. Its accessible description says the day and the count of every bar.
class BarChart final : public QWidget {
  Q_OBJECT

 public:
  static constexpr int chartHeight = 120;

  struct Bar {
    QString label;  ///< below the bar
    QString name;   ///< where there is room for all of it
    std::int64_t count = 0;
    bool operator==(const Bar&) const = default;
  };

  explicit BarChart(QWidget* parent = nullptr);

  void setBars(std::vector<Bar> bars);
  const std::vector<Bar>& bars() const { return bars_; }
  /// The bar at this place in reading order, in the widget's coordinates; empty where nothing is counted.
  QRectF barRect(std::size_t index) const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// Measures that follow from the size, the font and the counts.
  struct Measures {
    ChartAxis axis;
    QRectF plot;  ///< where the bars stand, for left-to-right reading
    double slot = 0;
    double labelHeight = 0;
  };
  Measures measures() const;
  QFont labelFont() const;
  /// Turned about for right-to-left reading.
  QRectF visual(const QRectF& rect) const;
  void paintAxis(QPainter& painter, const Measures& measures) const;
  void paintBars(QPainter& painter) const;
  void paintLabels(QPainter& painter, const Measures& measures) const;

  std::vector<Bar> bars_;
};

}  // namespace tessarin::ui
