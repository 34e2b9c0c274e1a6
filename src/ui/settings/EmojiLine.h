#pragma once

#include <QFont>
#include <QList>
#include <QString>

class QColor;
class QPainter;
class QRectF;

namespace tessarin::ui {

class EmojiGlyphs;

/// One line of text, cut with an ellipsis where it is too long. Its emoji are drawn from the bounded cache of
/// pictures; the toolkit would keep each that it has ever drawn.
class EmojiLine {
 public:
  EmojiLine(const QString& text, const QFont& font, double maxWidth);

  double width() const;
  /// Vertically centred in `frame`, at the side where lines begin.
  void draw(QPainter& painter, const QRectF& frame, const QColor& color, EmojiGlyphs& glyphs) const;

 private:
  struct Run {
    QString text;
    bool isEmoji;
    double width;
  };
  void split(const QString& text);
  void cut(double maxWidth);
  Run makeRun(const QString& text, bool isEmoji) const;
  int emojiSize() const;

  QFont font_;
  QList<Run> runs_;
  bool isRightToLeft_;
};

}  // namespace tessarin::ui
