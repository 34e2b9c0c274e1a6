#include "ui/style/SymbolLabel.h"

#include <QPainter>

#include "ui/style/Symbol.h"

namespace tessarin::ui {

SymbolLabel::SymbolLabel(const QString& symbol, int size, ColorRole color, QWidget* parent)
    : QWidget(parent), symbol_(symbol), color_(color) {
  setFixedSize(size, size);
}

void SymbolLabel::setSymbol(const QString& symbol, ColorRole color) {
  symbol_ = symbol;
  color_ = color;
  update();
}

void SymbolLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.drawPixmap(rect(), symbolPixmap(symbol_, colorOf(color_, palette()), size(), devicePixelRatioF()));
}

}  // namespace tessarin::ui
