#include "ui/PopupTheme.h"

#include <QFontDatabase>
#include <QPalette>

namespace tessarin::ui {
namespace {

constexpr double secondaryOpacity = 0.55;

QColor withOpacity(QColor color, double opacity) {
  color.setAlphaF(static_cast<float>(opacity));
  return color;
}

/// A popup lies above the windows: of the palette's two grounds, the lighter one.
QColor groundOf(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Active, QPalette::Base);
  const QColor window = palette.color(QPalette::Active, QPalette::Window);
  return base.lightnessF() > window.lightnessF() ? base : window;
}

/// White text has to be legible on the accent, whatever the desktop's highlight is.
QColor accentOf(const QPalette& palette) {
  QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
  while (qGray(accent.rgb()) > 150) accent = accent.darker(112);
  return accent;
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
      accent(accentOf(palette)),
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
