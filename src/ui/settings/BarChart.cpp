#include "ui/settings/BarChart.h"

#include <QAccessibleWidget>
#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "ui/style/Colors.h"
#include "ui/style/TextStyle.h"

namespace tessarin::ui {
namespace {

constexpr double cornerRadius = 4;
constexpr double widestBar = 44;
constexpr double barShare = 0.62;  // of the room that a bar has
constexpr double lowestBar = 2;    // so that a count of one is seen beside thousands
constexpr double axisGap = 6;
constexpr double labelGap = 4;
constexpr double gridOpacity = 0.12;
constexpr double linesPerMark = 1.7;
constexpr int mostIntervals = 4;

/// Said to be a chart, so that its description is not passed over as that of a mere container.
QAccessibleInterface* makeAccessible(const QString& /*className*/, QObject* object) {
  auto* chart = qobject_cast<BarChart*>(object);
  return chart != nullptr ? new QAccessibleWidget(chart, QAccessible::Chart) : nullptr;
}

}  // namespace

BarChart::BarChart(QWidget* parent) : QWidget(parent) {
  QAccessible::installFactory(makeAccessible);
  setFixedHeight(chartHeight);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BarChart::setBars(std::vector<Bar> bars) {
  if (bars == bars_) return;
  bars_ = std::move(bars);
  QStringList spoken;
  for (const Bar& bar : bars_) {
    spoken << tr("%1: %2, %3: %4").arg(tr("Day"), bar.name, tr("Count"), QString::number(bar.count));
  }
  setAccessibleDescription(spoken.join("; "));
  update();
}

QFont BarChart::labelFont() const {
  return fontOf(TextStyle::caption2, font());
}

BarChart::Measures BarChart::measures() const {
  Measures result;
  const QFontMetricsF metrics(labelFont());
  result.labelHeight = metrics.height();
  const double above = result.labelHeight / 2;
  const double plotHeight = height() - above - labelGap - result.labelHeight;
  std::int64_t highest = 0;
  for (const Bar& bar : bars_) highest = std::max(highest, bar.count);
  const int room = static_cast<int>(plotHeight / (linesPerMark * result.labelHeight));
  result.axis = ChartAxis::reaching(highest, std::clamp(room, 1, mostIntervals));
  const double marks = metrics.horizontalAdvance(QString::number(result.axis.top));
  result.plot = QRectF(0, above, width() - axisGap - marks, plotHeight);
  if (!bars_.empty()) result.slot = result.plot.width() / static_cast<double>(bars_.size());
  return result;
}

QRectF BarChart::visual(const QRectF& rect) const {
  if (layoutDirection() == Qt::LeftToRight) return rect;
  return {width() - rect.right(), rect.top(), rect.width(), rect.height()};
}

QRectF BarChart::barRect(std::size_t index) const {
  const Bar& bar = bars_.at(index);
  if (bar.count <= 0) return {};
  const Measures all = measures();
  const double share = static_cast<double>(bar.count) / static_cast<double>(all.axis.top);
  const double barHeight = std::max(lowestBar, all.plot.height() * share);
  const double barWidth = std::min(widestBar, all.slot * barShare);
  const double centre = all.slot * (static_cast<double>(index) + 0.5);
  return visual({centre - barWidth / 2, all.plot.bottom() - barHeight, barWidth, barHeight});
}

void BarChart::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(labelFont());
  const Measures all = measures();
  paintAxis(painter, all);
  paintBars(painter);
  paintLabels(painter, all);
}

void BarChart::paintAxis(QPainter& painter, const Measures& measures) const {
  const QColor line = withOpacity(colorOf(ColorRole::primary, palette()), gridOpacity);
  const Qt::Alignment outward = Qt::AlignVCenter | Qt::AlignAbsolute |
                                (layoutDirection() == Qt::LeftToRight ? Qt::AlignRight : Qt::AlignLeft);
  const double axisWidth = width() - measures.plot.right();
  for (std::int64_t count = 0; count <= measures.axis.top; count += measures.axis.step) {
    const double share = static_cast<double>(count) / static_cast<double>(measures.axis.top);
    const double y = measures.plot.bottom() - measures.plot.height() * share;
    painter.fillRect(visual({0, qRound(y) - 0.5, measures.plot.width(), 1}), line);
    painter.setPen(colorOf(ColorRole::secondary, palette()));
    const QRectF place(measures.plot.right(), y - measures.labelHeight / 2, axisWidth, measures.labelHeight);
    painter.drawText(visual(place), static_cast<int>(outward), QString::number(count));
  }
}

void BarChart::paintBars(QPainter& painter) const {
  const QColor accent = colorOf(ColorRole::accent, palette());
  painter.setPen(Qt::NoPen);
  for (std::size_t index = 0; index < bars_.size(); ++index) {
    const QRectF rect = barRect(index);
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, accent.lighter(128));
    gradient.setColorAt(1, accent);
    painter.setBrush(gradient);
    const double radius = std::min({cornerRadius, rect.width() / 2, rect.height() / 2});
    painter.drawRoundedRect(rect, radius, radius);
  }
}

void BarChart::paintLabels(QPainter& painter, const Measures& measures) const {
  painter.setPen(colorOf(ColorRole::secondary, palette()));
  const QFontMetricsF metrics(labelFont());
  for (std::size_t index = 0; index < bars_.size(); ++index) {
    const QRectF place(measures.slot * static_cast<double>(index), height() - measures.labelHeight,
                       measures.slot, measures.labelHeight);
    painter.drawText(visual(place), Qt::AlignCenter,
                     metrics.elidedText(bars_[index].label, Qt::ElideRight, measures.slot));
  }
}

}  // namespace tessarin::ui
