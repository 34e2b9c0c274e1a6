#pragma once

#include <QCache>
#include <QColor>
#include <QImage>
#include <QString>

#include "ui/EmojiFont.h"

class QPainter;
class QRectF;

namespace tessarin::ui {

/// Draws replacements: emoji in colour, kaomoji and other text in the given colour, and a tile with the code
/// point for what no installed font can draw. Pictures are kept, in a bounded number of bytes.
class EmojiGlyphs {
 public:
  EmojiGlyphs();

  /// Centred in `frame`. `size`: of the font, in points; a text that is wider than the frame is drawn
  /// smaller, or on two lines where it would be too small to read.
  void draw(QPainter& painter, const QRectF& frame, const QString& text, int size, const QColor& color);

  /// Whether a tile stands for this text: for an emoji, or any text of up to two characters, that the fonts
  /// have no glyph for. Longer texts are recognised without the letter that a font lacks.
  bool needsTile(const QString& text);
  /// The tile's lines: the hexadecimal code point in two halves, e.g. "1F9", "C9".
  static QStringList tileLines(const QString& text);
  /// Gives back what the font takes up beyond the pictures kept.
  void rest() { font_.rest(); }
  qsizetype cachedBytes() const { return cache_.totalCost(); }

 private:
  QImage render(const QString& text, int size, const QColor& color, QSizeF frame, double pixelRatio);

  EmojiFont font_;
  QCache<QString, QImage> cache_;
};

}  // namespace tessarin::ui
