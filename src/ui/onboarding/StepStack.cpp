#include "ui/onboarding/StepStack.h"

#include <QStyle>

#include "ui/onboarding/StepTransition.h"

namespace tessarin::ui {

StepStack::StepStack(QWidget* parent) : QStackedWidget(parent), transition_(new StepTransition(this)) {}

bool StepStack::isAnimated() const {
  return isVisible() && style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this) > 0;
}

void StepStack::slideTo(int index) {
  transition_->stop();
  const bool isForward = index > currentIndex();
  const QPixmap before = isAnimated() ? grab() : QPixmap();
  setCurrentIndex(index);
  if (!before.isNull()) transition_->start(before, grab(), isForward);
}

}  // namespace tessarin::ui
