#include "ui/style/TextStyle.h"

#include <QFontDatabase>

namespace tessarin::ui {
namespace {

QFont scaled(QFont font, double factor, QFont::Weight weight = QFont::Normal) {
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * factor);
  } else {
    font.setPixelSize(qRound(font.pixelSize() * factor));
  }
  font.setWeight(weight);
  return font;
}

QFont monospaced(const QFont& base) {
  QFont font = base;
  font.setFamily(QFontDatabase::systemFont(QFontDatabase::FixedFont).family());
  font.setStyleHint(QFont::Monospace);
  return font;
}

}  // namespace

QFont fontOf(TextStyle style, const QFont& base) {
  switch (style) {
    case TextStyle::figure:
      return scaled(base, 2.1, QFont::Bold);
    case TextStyle::largeTitle:
      return scaled(base, 2.0, QFont::Bold);
    case TextStyle::title:
      return scaled(base, 1.7, QFont::Bold);
    case TextStyle::title2:
      return scaled(base, 1.4);
    case TextStyle::title3:
      return scaled(base, 1.2);
    case TextStyle::headline:
      return scaled(base, 1.0, QFont::Bold);
    case TextStyle::subheadline:
      return scaled(base, 0.95, QFont::Medium);
    case TextStyle::body:
      return base;
    case TextStyle::caption:
      return scaled(base, 0.87);
    case TextStyle::caption2:
      return scaled(base, 0.8);
    case TextStyle::monospacedBody:
      return monospaced(base);
  }
  return base;
}

}  // namespace tessarin::ui
