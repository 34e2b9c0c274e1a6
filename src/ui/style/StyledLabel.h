#pragma once

#include <QLabel>

#include "ui/style/Colors.h"
#include "ui/style/TextStyle.h"

namespace tessarin::ui {

/// Text in one of our styles and colours, following the desktop's font and palette as they change. Plain text
/// only.
class StyledLabel : public QLabel {
  Q_OBJECT

 public:
  explicit StyledLabel(const QString& text, TextStyle style = TextStyle::body,
                       ColorRole color = ColorRole::primary, QWidget* parent = nullptr);

  /// Breaks into as many lines as its width asks for, the height following.
  StyledLabel& wrapped();
  StyledLabel& centred();
  void setColor(ColorRole color);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void restyle();
  void alignToSide();

  TextStyle style_;
  ColorRole color_;
  bool isRestyling_ = false;
};

}  // namespace tessarin::ui
