#include "ui/onboarding/StepTransition.h"

#include <QEasingCurve>
#include <QPainter>
#include <algorithm>

namespace tessarin::ui {
namespace {

constexpr int milliseconds = 250;
constexpr double distance = 40;
constexpr double turn =
    0.4;  // when the one has gone and the other begins to appear: never two texts over each other

}  // namespace

StepTransition::StepTransition(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAutoFillBackground(true);
  hide();
  progress_.setDuration(milliseconds);
  progress_.setStartValue(0.0);
  progress_.setEndValue(1.0);
  progress_.setEasingCurve(QEasingCurve::InOutQuad);
  connect(&progress_, &QVariantAnimation::valueChanged, this, [this] { update(); });
  connect(&progress_, &QVariantAnimation::finished, this, &StepTransition::stop);
}

void StepTransition::start(const QPixmap& before, const QPixmap& after, bool isForward) {
  before_ = before;
  after_ = after;
  direction_ = isForward == (layoutDirection() == Qt::LeftToRight) ? 1 : -1;
  setGeometry(parentWidget()->rect());
  raise();
  show();
  progress_.start();
}

void StepTransition::stop() {
  progress_.stop();
  hide();
  before_ = {};
  after_ = {};
}

void StepTransition::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const double progress = progress_.currentValue().toDouble();
  painter.setOpacity(std::max(0.0, 1 - progress / turn));
  painter.drawPixmap(QPointF(-direction_ * distance * progress, 0), before_);
  painter.setOpacity(std::max(0.0, (progress - turn) / (1 - turn)));
  painter.drawPixmap(QPointF(direction_ * distance * (1 - progress), 0), after_);
}

}  // namespace tessarin::ui
