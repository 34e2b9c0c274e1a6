#include "ui/settings/BarChart.h"

#include <QLinearGradient>
#include <QLocale>
#include <QPainter>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "ui/style/Colors.h"
#include "ui/style/TextStyle.h"

namespace tessarin::ui {
namespace {

constexpr double radius = 4;
constexpr double barShare = 0.62;  ///< of the room that a bar and its gap have
constexpr int gap = 6;             ///< between the scale, the labels and the bars
constexpr int mostSteps = 4;

}  // namespace

BarChart::BarChart(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BarChart::setBars(std::vector<Bar> bars) {
  bars_ = std::move(bars);
  QStringList told;
  for (const Bar& bar : bars_) told << QStringLiteral("%1 %2").arg(bar.label).arg(bar.count);
  setAccessibleDescription(told.join(", "));
  update();
}

std::int64_t BarChart::stepFor(std::int64_t highest) {
  for (std::int64_t power = 1;; power *= 10) {
    for (const std::int64_t factor : {1, 2, 5}) {
      if (power * factor * mostSteps >= highest) return power * factor;
    }
  }
}

std::int64_t BarChart::step() const {
  std::int64_t highest = 1;
  for (const Bar& bar : bars_) highest = std::max(highest, bar.count);
  return stepFor(highest);
}

std::int64_t BarChart::top() const {
  std::int64_t highest = 1;
  for (const Bar& bar : bars_) highest = std::max(highest, bar.count);
  return (highest + step() - 1) / step() * step();
}

int BarChart::scaleWidth() const {
  return QFontMetrics(fontOf(TextStyle::caption2, font()))
      .horizontalAdvance(locale().toString(static_cast<qlonglong>(top())));
}

void BarChart::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(fontOf(TextStyle::caption2, font()));
  const int line = painter.fontMetrics().height();
  const QRectF plot(scaleWidth() + gap, line / 2.0, width() - scaleWidth() - gap,
                    height() - 1.5 * line - gap);
  paintScale(painter, plot);
  paintBars(painter, plot);
}

void BarChart::paintScale(QPainter& painter, const QRectF& plot) const {
  const QColor text = colorOf(ColorRole::secondary, palette());
  const QColor lines = withOpacity(colorOf(ColorRole::primary, palette()), 0.12);
  const int line = painter.fontMetrics().height();
  for (std::int64_t value = 0; value <= top(); value += step()) {
    const double y = plot.bottom() - plot.height() * static_cast<double>(value) / static_cast<double>(top());
    painter.setPen(lines);
    const QRect rule(qRound(plot.left()), qRound(y), qRound(plot.width()), 0);
    const QRect shown = QStyle::visualRect(layoutDirection(), this->rect(), rule.adjusted(0, 0, 0, 1));
    painter.drawLine(QPointF(shown.left(), qRound(y) + 0.5), QPointF(shown.right(), qRound(y) + 0.5));
    painter.setPen(text);
    const QRect number(0, qRound(y) - line / 2, scaleWidth(), line);
    painter.drawText(QStyle::visualRect(layoutDirection(), this->rect(), number),
                     Qt::AlignRight | Qt::AlignVCenter, locale().toString(static_cast<qlonglong>(value)));
  }
}

void BarChart::paintBars(QPainter& painter, const QRectF& plot) const {
  if (bars_.empty()) return;
  const double room = plot.width() / static_cast<double>(bars_.size());
  const QColor accent = colorOf(ColorRole::accent, palette());
  QLinearGradient fill(plot.topLeft(), plot.bottomLeft());
  fill.setColorAt(0, accent.lighter(118));
  fill.setColorAt(1, accent);
  for (std::size_t index = 0; index < bars_.size(); ++index) {
    const double left = plot.left() + room * static_cast<double>(index);
    const double high = plot.height() * static_cast<double>(bars_[index].count) / static_cast<double>(top());
    const QRectF bar(left + room * (1 - barShare) / 2, plot.bottom() - high, room * barShare, high);
    const QRectF label(left, plot.bottom() + gap, room, height() - plot.bottom() - gap);
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const auto placed = [&](QRectF rect) {
      if (mirrored) rect.moveLeft(width() - rect.right());
      return rect;
    };
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    if (high > 0)
      painter.drawRoundedRect(placed(bar), std::min(radius, high / 2), std::min(radius, high / 2));
    painter.setPen(colorOf(ColorRole::secondary, palette()));
    painter.drawText(placed(label), Qt::AlignHCenter | Qt::AlignTop, bars_[index].label);
  }
}

}  // namespace tessarin::ui
