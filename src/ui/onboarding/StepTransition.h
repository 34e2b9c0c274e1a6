#pragma once

#include <QPixmap>
#include <QVariantAnimation>
#include <QWidget>

namespace tessarin::ui {

/// Covers its parent while one picture of it gives way to another, then is gone. What lies beneath is already
/// at work.
class StepTransition final : public QWidget {
  Q_OBJECT

 public:
  explicit StepTransition(QWidget* parent);

  void start(const QPixmap& before, const QPixmap& after, bool isForward);
  void stop();

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap before_;
  QPixmap after_;
  double direction_ = 1;
  QVariantAnimation progress_{this};
};

}  // namespace tessarin::ui
