#include "ui/style/StyledLabel.h"

#include <QApplication>
#include <QEvent>

namespace tessarin::ui {

StyledLabel::StyledLabel(const QString& text, TextStyle style, ColorRole color, QWidget* parent)
    : QLabel(text, parent), style_(style), color_(color) {
  setTextFormat(Qt::PlainText);
  setForegroundRole(QPalette::WindowText);  // else that of a list, in a list
  restyle();
}

StyledLabel& StyledLabel::wrapped() {
  setWordWrap(true);
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
  return *this;
}

StyledLabel& StyledLabel::centred() {
  setAlignment(Qt::AlignCenter);
  return *this;
}

void StyledLabel::setColor(ColorRole color) {
  color_ = color;
  restyle();
}

void StyledLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  const bool isStyle = event->type() == QEvent::ApplicationFontChange ||
                       event->type() == QEvent::ApplicationPaletteChange ||
                       event->type() == QEvent::PaletteChange;
  if (isStyle && !isRestyling_) restyle();
}

void StyledLabel::restyle() {
  isRestyling_ = true;
  setFont(fontOf(style_, QApplication::font(this)));
  QPalette colors = QApplication::palette(this);
  colors.setColor(QPalette::WindowText, colorOf(color_, colors));
  setPalette(colors);
  isRestyling_ = false;
}

}  // namespace tessarin::ui
