#pragma once

#include <QColor>
#include <QFont>

class QPalette;

namespace tessarin::ui {

/// The popup's colours, taken from the desktop's palette, light or dark.
struct PopupTheme {
  explicit PopupTheme(const QPalette& palette);

  QColor primary;
  QColor secondary;
  QColor accent;
  QColor card;

  QColor primaryAt(double opacity) const;
  QColor accentAt(double opacity) const;
};

/// The popup's fonts. Sizes are points of the picture, that is logical pixels.
namespace fonts {
QFont system(int size, QFont::Weight weight = QFont::Normal);
QFont monospaced(int size, QFont::Weight weight = QFont::Normal);
}  // namespace fonts

}  // namespace tessarin::ui
