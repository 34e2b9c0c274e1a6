#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

namespace tessarin::ui {

/// Bars side by side in reading direction, with a label below each and a scale of whole numbers at their
/// beginning.
class BarChart final : public QWidget {
  Q_OBJECT

 public:
  struct Bar {
    QString label;
    std::int64_t count = 0;
  };

  explicit BarChart(QWidget* parent = nullptr);

  void setBars(std::vector<Bar> bars);

  /// Distance of two marks of the scale where the highest bar is `highest`: 1, 2 or 5 times a power of ten,
  /// so that four marks at most are above zero.
  static std::int64_t stepFor(std::int64_t highest);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::int64_t step() const;
  /// Of the scale's end, a multiple of the step and not less than the highest bar.
  std::int64_t top() const;
  void paintScale(QPainter& painter, const QRectF& plot) const;
  void paintBars(QPainter& painter, const QRectF& plot) const;
  int scaleWidth() const;

  std::vector<Bar> bars_;
};

}  // namespace tessarin::ui
