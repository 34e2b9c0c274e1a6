#pragma once

#include <QPixmap>
#include <QPointer>
#include <QWidget>

class QVariantAnimation;

namespace tessarin::ui {

/// Lets one step slide out while the next comes in, over pictures of both. Where the desktop wants no
/// animations, nothing is shown of it.
class StepAnimation final : public QWidget {
  Q_OBJECT

 public:
  enum class Direction { forward, back };

  /// Covers `stage`, which shows the next step already.
  static void run(QWidget& stage, const QPixmap& before, Direction direction);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  StepAnimation(QWidget& stage, const QPixmap& before, const QPixmap& after, int towards, int duration);

  QPixmap before_;
  QPixmap after_;
  int towards_;  ///< -1: to the left
  QVariantAnimation* progress_;
};

}  // namespace tessarin::ui
