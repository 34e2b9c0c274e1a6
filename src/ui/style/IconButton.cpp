#include "ui/style/IconButton.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace tessarin::ui {

void IconButton::paintEvent(QPaintEvent* /*event*/) {
  QStylePainter painter(this);
  // Styles align the text to the icon themselves; a painter that mirrors too would put it at the far border.
  if (isRightToLeft()) painter.setLayoutDirection(Qt::LayoutDirectionAuto);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButton, option);
}

}  // namespace tessarin::ui
