#pragma once

#include <QWidget>

#include "ui/style/Colors.h"

namespace tessarin::ui {

/// One of our symbols, square, in a colour of ours. Decorative unless it is given an accessible name.
class SymbolLabel final : public QWidget {
  Q_OBJECT

 public:
  /// `size` in points: that of the text beside which, or instead of which, the symbol stands.
  SymbolLabel(const QString& symbol, int size, ColorRole color, QWidget* parent = nullptr);

  void setSymbol(const QString& symbol, ColorRole color);
  const QString& symbol() const { return symbol_; }
  ColorRole color() const { return color_; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString symbol_;
  ColorRole color_;
};

}  // namespace tessarin::ui
