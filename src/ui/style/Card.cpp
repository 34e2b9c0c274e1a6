#include "ui/style/Card.h"

#include <QPainter>

#include "ui/style/Colors.h"

namespace tessarin::ui {
namespace {

constexpr double cardRadius = 8;
constexpr double opacity = 0.04;

}  // namespace

void Card::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(withOpacity(colorOf(ColorRole::primary, palette()), opacity));
  painter.drawRoundedRect(rect(), cardRadius, cardRadius);
}

}  // namespace tessarin::ui
