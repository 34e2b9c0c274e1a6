#include "ui/PopupTheme.h"

#include <QFontDatabase>
#include <QPalette>

#include "ui/style/Colors.h"

namespace tessarin::ui {
namespace {

constexpr double secondaryOpacity = 0.55;

/// A popup lies above the windows: of the palette's two grounds, the lighter one.
QColor groundOf(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  return base.lightnessF() > window.lightnessF() ? base : window;
}

QFont fontOf(QFontDatabase::SystemFont which, int size, QFont::Weight weight) {
  QFont font(QFontDatabase::systemFont(which).family());
  font.setPixelSize(size);
  font.setWeight(weight);
  return font;
}

}  // namespace

PopupTheme::PopupTheme(const QPalette& palette)
    : primary(palette.color(QPalette::Active, QPalette::WindowText)),
      secondary(withOpacity(primary, secondaryOpacity)),
      accent(colorOf(ColorRole::accent, palette)),
      card(groundOf(palette)) {}

QColor PopupTheme::primaryAt(double opacity) const {
  return withOpacity(primary, opacity);
}

QColor PopupTheme::accentAt(double opacity) const {
  return withOpacity(accent, opacity);
}

QFont fonts::system(int size, QFont::Weight weight) {
  return fontOf(QFontDatabase::GeneralFont, size, weight);
}

QFont fonts::monospaced(int size, QFont::Weight weight) {
  QFont font = fontOf(QFontDatabase::FixedFont, size, weight);
  font.setStyleHint(QFont::Monospace);
  return font;
}

}  // namespace tessarin::ui
