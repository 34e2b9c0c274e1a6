#include "ui/onboarding/StepIndicator.h"

#include <QPainter>
#include <QStyle>

#include "ui/style/Colors.h"

namespace tessarin::ui {
namespace {

constexpr int dot = 8;
constexpr int gap = 6;
constexpr double faint = 0.2;

}  // namespace

StepIndicator::StepIndicator(int steps, QWidget* parent) : QWidget(parent), steps_(steps) {
  setFixedSize(steps * dot + (steps - 1) * gap, dot);
  setCurrentStep(0);
}

void StepIndicator::setCurrentStep(int step) {
  current_ = step;
  setAccessibleName(tr("Step %1 of %2").arg(step + 1).arg(steps_));
  update();
}

void StepIndicator::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  for (int step = 0; step < steps_; ++step) {
    painter.setBrush(step == current_ ? colorOf(ColorRole::accent, palette())
                                      : withOpacity(colorOf(ColorRole::primary, palette()), faint));
    const QRect place(step * (dot + gap), 0, dot, dot);
    painter.drawEllipse(QStyle::visualRect(layoutDirection(), rect(), place));
  }
}

}  // namespace tessarin::ui
