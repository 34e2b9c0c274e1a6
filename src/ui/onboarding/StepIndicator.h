#pragma once

#include <QWidget>

namespace tessarin::ui {

/// A dot for each step, the current one in the accent colour.
class StepIndicator final : public QWidget {
  Q_OBJECT

 public:
  explicit StepIndicator(int steps, QWidget* parent = nullptr);

  void setCurrent(int step);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int steps_;
  int current_ = -1;
};

}  // namespace tessarin::ui
