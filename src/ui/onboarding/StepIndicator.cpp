#include "ui/onboarding/StepIndicator.h"

#include <QPainter>
#include <QStyle>

#include "ui/style/Colors.h"

namespace tessarin::ui {
namespace {

constexpr int dotSize = 8;
constexpr int dotSpacing = 6;
constexpr double faintOpacity = 0.2;

}  // namespace

StepIndicator::StepIndicator(int steps, QWidget* parent) : QWidget(parent), steps_(steps) {
  setFixedSize(steps * (dotSize + dotSpacing) - dotSpacing, dotSize);
  setCurrent(0);
}

void StepIndicator::setCurrent(int step) {
  current_ = step;
  setAccessibleName(tr("Step %1 of %2").arg(step + 1).arg(steps_));
  update();
}

void StepIndicator::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  const QColor accent = colorOf(ColorRole::accent, palette());
  const QColor faint = withOpacity(colorOf(ColorRole::primary, palette()), faintOpacity);
  for (int step = 0; step < steps_; ++step) {
    const QRect dot(step * (dotSize + dotSpacing), 0, dotSize, dotSize);
    painter.setBrush(step == current_ ? accent : faint);
    painter.drawEllipse(QStyle::visualRect(layoutDirection(), rect(), dot));
  }
}

}  // namespace tessarin::ui
