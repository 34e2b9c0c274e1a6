#pragma once

#include <QStackedWidget>

namespace tessarin::ui {

class StepTransition;

/// Shows one step at a time. The step is there at once; its picture slides in where the desktop wants
/// animations.
class StepStack final : public QStackedWidget {
  Q_OBJECT

 public:
  explicit StepStack(QWidget* parent = nullptr);

  void slideTo(int index);

 private:
  bool isAnimated() const;

  StepTransition* transition_;
};

}  // namespace tessarin::ui
