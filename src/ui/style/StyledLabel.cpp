#include "ui/style/StyledLabel.h"

#include <QApplication>
#include <QEvent>

namespace tessarin::ui {

StyledLabel::StyledLabel(const QString& text, TextStyle style, ColorRole color, QWidget* parent)
    : QLabel(text, parent), style_(style), color_(color) {
  setTextFormat(Qt::PlainText);
  setForegroundRole(QPalette::WindowText);  // else that of a list, in a list
  restyle();
  alignToSide();
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
  if (event->type() == QEvent::LayoutDirectionChange) alignToSide();
}

void StyledLabel::restyle() {
  isRestyling_ = true;
  setFont(fontOf(style_, QApplication::font(this)));
  QPalette colors = QApplication::palette(this);
  colors.setColor(QPalette::WindowText, colorOf(color_, colors));
  setPalette(colors);
  isRestyling_ = false;
}

/// The side of the layout, not that of the text: a line that is not translated stands below the others.
void StyledLabel::alignToSide() {
  const Qt::Alignment horizontal = alignment() & Qt::AlignHorizontal_Mask;
  const bool isAtSide = horizontal == Qt::AlignLeft || horizontal.testFlag(Qt::AlignAbsolute);
  if (!isAtSide) return;
  const Qt::Alignment side = isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
  setAlignment((alignment() & Qt::AlignVertical_Mask) | side | Qt::AlignAbsolute);
}

}  // namespace tessarin::ui
