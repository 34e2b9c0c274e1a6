#pragma once

#include "ui/style/StyledLabel.h"

namespace tessarin::ui {

/// Text in at most so many lines; what does not fit is cut with an ellipsis. Screen readers get all of it.
class ShortLabel final : public StyledLabel {
  Q_OBJECT

 public:
  ShortLabel(int mostLines, TextStyle style, ColorRole color, QWidget* parent = nullptr);

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int lineHeight() const;
  template <class Visit>
  int layOut(int width, Visit visit) const;

  int mostLines_;
};

}  // namespace tessarin::ui
