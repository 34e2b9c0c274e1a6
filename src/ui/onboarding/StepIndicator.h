#pragma once

#include <QWidget>

namespace tessarin::ui {

/// A row of dots, one a step, with that of the current step in the accent colour.
class StepIndicator final : public QWidget {
  Q_OBJECT

 public:
  explicit StepIndicator(int steps, QWidget* parent = nullptr);
  void setCurrentStep(int step);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int steps_;
  int current_ = 0;
};

}  // namespace tessarin::ui
