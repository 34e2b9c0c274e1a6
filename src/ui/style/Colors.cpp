#include "ui/style/Colors.h"

#include <QPalette>
#include <algorithm>

namespace tessarin::ui {
namespace {

constexpr double secondaryTextOpacity = 0.65;

/// White text has to be legible on the accent, whatever the desktop's highlight is.
QColor accentOf(const QPalette& palette) {
  QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
  while (qGray(accent.rgb()) > 150) accent = accent.darker(112);
  return accent;
}

/// Few dark themes say what a link looks like, and Qt's own blue cannot be read on them.
QColor linkOf(const QPalette& palette) {
  const QColor link = palette.color(QPalette::Active, QPalette::Link);
  if (!isDark(palette)) return link;
  return QColor::fromHslF(link.hslHueF(), link.hslSaturationF(), std::max(link.lightnessF(), 0.78F));
}

}  // namespace

QColor colorOf(ColorRole role, const QPalette& palette) {
  const QColor primary = palette.color(QPalette::Active, QPalette::WindowText);
  const bool dark = isDark(palette);
  switch (role) {
    case ColorRole::primary:
      return primary;
    case ColorRole::secondary:
      return withOpacity(primary, secondaryTextOpacity);
    case ColorRole::accent:
      return accentOf(palette);
    case ColorRole::link:
      return linkOf(palette);
    case ColorRole::green:
      return dark ? QColor(0x51, 0xcf, 0x66) : QColor(0x21, 0x83, 0x38);
    case ColorRole::red:
      return dark ? QColor(0xff, 0x6b, 0x6b) : QColor(0xc9, 0x2a, 0x2a);
    case ColorRole::yellow:
      return dark ? QColor(0xff, 0xd4, 0x3b) : QColor(0xd8, 0x9a, 0x00);
  }
  return primary;
}

QColor withOpacity(QColor color, double opacity) {
  color.setAlphaF(static_cast<float>(opacity));
  return color;
}

bool isDark(const QPalette& palette) {
  return palette.color(QPalette::WindowText).lightnessF() > palette.color(QPalette::Window).lightnessF();
}

}  // namespace tessarin::ui
