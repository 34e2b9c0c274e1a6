#include "ui/onboarding/StepAnimation.h"

#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>

namespace tessarin::ui {
namespace {

constexpr int duration = 250;  ///< milliseconds
constexpr double slide = 60;   ///< points that a step moves by

}  // namespace

void StepAnimation::run(QWidget& stage, const QPixmap& before, Direction direction) {
  const bool isWanted = stage.style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, &stage) > 0;
  if (!isWanted || !stage.isVisible()) return;
  const bool isMirrored = stage.layoutDirection() == Qt::RightToLeft;
  const int towards = (direction == Direction::forward) != isMirrored ? -1 : 1;
  auto* animation = new StepAnimation(stage, before, stage.grab(), towards, duration);
  animation->show();
  animation->progress_->start();
}

StepAnimation::StepAnimation(QWidget& stage, const QPixmap& before, const QPixmap& after, int towards,
                             int milliseconds)
    : QWidget(&stage),
      before_(before),
      after_(after),
      towards_(towards),
      progress_(new QVariantAnimation(this)) {
  setGeometry(stage.rect());
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAutoFillBackground(true);
  progress_->setStartValue(0.0);
  progress_->setEndValue(1.0);
  progress_->setDuration(milliseconds);
  progress_->setEasingCurve(QEasingCurve::InOutQuad);
  connect(progress_, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
  connect(progress_, &QVariantAnimation::finished, this, [this] {
    hide();
    deleteLater();
  });
}

void StepAnimation::paintEvent(QPaintEvent* /*event*/) {
  const double done = progress_->currentValue().toDouble();
  QPainter painter(this);
  painter.setOpacity(1 - done);
  painter.drawPixmap(QPointF(towards_ * slide * done, 0), before_);
  painter.setOpacity(done);
  painter.drawPixmap(QPointF(-towards_ * slide * (1 - done), 0), after_);
}

}  // namespace tessarin::ui
