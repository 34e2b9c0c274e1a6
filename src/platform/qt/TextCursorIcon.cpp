#include "platform/qt/TextCursorIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>
#include <QPixmap>

namespace tessarin::ui {
namespace {

constexpr int points = 18;
constexpr qreal dimmedOpacity = 0.4;

QPixmap drawn(int scale, bool dimmed) {
  QPixmap pixmap(points * scale, points * scale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(scale, scale);
  painter.setOpacity(dimmed ? dimmedOpacity : 1.0);
  painter.setPen(
      QPen(QGuiApplication::palette().color(QPalette::WindowText), 1.6, Qt::SolidLine, Qt::RoundCap));
  // The stem, and at either end two serifs that bend away from it.
  painter.drawLine(QPointF(9, 4), QPointF(9, 14));
  for (const qreal side : {-1.0, 1.0}) {
    painter.drawLine(QPointF(9, 4), QPointF(9 + 2.8 * side, 2.4));
    painter.drawLine(QPointF(9, 14), QPointF(9 + 2.8 * side, 15.6));
  }
  painter.drawLine(QPointF(2.2, 9), QPointF(5.6, 9));
  painter.drawLine(QPointF(12.4, 9), QPointF(15.8, 9));
  return pixmap;
}

}  // namespace

QIcon textCursorIcon(bool dimmed) {
  QIcon icon;
  for (const int scale : {1, 2, 3}) icon.addPixmap(drawn(scale, dimmed));
  return icon;
}

}  // namespace tessarin::ui
