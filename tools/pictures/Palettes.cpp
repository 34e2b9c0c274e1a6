#include "Palettes.h"

namespace tessarin::pictures {

QPalette darkPalette() {
  QPalette palette(QColor(0x2b, 0x2b, 0x2e), QColor(0x2b, 0x2b, 0x2e));
  palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x20));
  palette.setColor(QPalette::WindowText, QColor(0xf2, 0xf2, 0xf2));
  palette.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xe4));
  return palette;
}

QPalette lightPalette() {
  QPalette palette(QColor(0xf0, 0xf0, 0xf0), QColor(0xf6, 0xf5, 0xf4));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::WindowText, QColor(0x1d, 0x1d, 0x1f));
  palette.setColor(QPalette::Highlight, QColor(0x35, 0x84, 0xe4));
  return palette;
}

QPalette highContrastPalette() {
  QPalette palette(Qt::black, Qt::black);
  palette.setColor(QPalette::Base, Qt::black);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, Qt::white);
  }
  palette.setColor(QPalette::Highlight, QColor(0xff, 0xd7, 0x00));
  palette.setColor(QPalette::HighlightedText, Qt::black);
  return palette;
}

}  // namespace tessarin::pictures
