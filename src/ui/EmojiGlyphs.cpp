#include "ui/EmojiGlyphs.h"

#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

#include "text/Graphemes.h"
#include "ui/EmojiText.h"
#include "ui/PopupTheme.h"

namespace tessarin::ui {
namespace {

constexpr qsizetype cacheBytes = qsizetype{512} * 1024;
constexpr double tileSide = 22.0 / 28.0;

bool isShort(const QString& text) {
  return text::characterCount(text.toStdString()) <= 2;
}

/// A text that would have to be drawn smaller than this to fit is rather broken.
constexpr double smallestShrink = 0.7;

/// Draws the text as one line in the middle of the frame, smaller when it is too wide. False, and nothing is
/// drawn, when it would be smaller than `smallest` allows.
bool drawGlyphLine(QPainter& painter, const QRectF& frame, const QString& text, const QFont& font,
                   double smallest) {
  QTextLayout layout(text, font);
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  const double width = line.naturalTextWidth();
  const double shrink = std::min(1.0, frame.width() / std::max(width, 1.0));
  if (shrink < smallest) return false;
  painter.translate(frame.center());
  painter.scale(shrink, shrink);
  layout.draw(&painter, QPointF(-width / 2, -line.height() / 2));
  return true;
}

/// How much of the text fits beside the frame's edges, broken anywhere.
int lengthOfFirstLine(const QString& text, const QFont& font, double width) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(width);
  layout.endLayout();
  return line.textLength();
}

/// Kaomoji and the beginnings of longer texts, on two lines where one is too short.
void drawText(QPainter& painter, const QRectF& frame, const QString& text, const QFont& font) {
  const QFontMetricsF metrics(font);
  const auto split = lengthOfFirstLine(text, font, frame.width());
  QStringList lines{text.left(split).trimmed()};
  if (split < text.size())
    lines << metrics.elidedText(text.mid(split).trimmed(), Qt::ElideRight, frame.width());
  const double height = metrics.height();
  double top = frame.center().y() - height * static_cast<double>(lines.size()) / 2;
  painter.setFont(font);
  for (const QString& line : lines) {
    painter.drawText(QRectF(frame.left(), top, frame.width(), height), Qt::AlignCenter | Qt::TextDontClip,
                     line);
    top += height;
  }
}

/// Side by side in the middle of the frame, `height` high unless that is too wide.
void drawPictures(QPainter& painter, const QRectF& frame, const QList<QImage>& pictures, double height) {
  double width = 0;
  for (const QImage& picture : pictures) width += height * picture.width() / picture.height();
  const double shrink = std::min(1.0, frame.width() / width);
  const double ratio = painter.device()->devicePixelRatio();
  double x = frame.center().x() - width * shrink / 2;
  for (const QImage& picture : pictures) {
    const auto pixels = static_cast<int>(std::lround(height * shrink * ratio));
    QImage small = picture.scaledToHeight(pixels, Qt::SmoothTransformation);
    small.setDevicePixelRatio(ratio);
    const QSizeF size = small.deviceIndependentSize();
    const double y = frame.center().y() - size.height() / 2;
    painter.drawImage(QPointF(std::round(x * ratio) / ratio, std::round(y * ratio) / ratio), small);
    x += size.width();
  }
}

bool hasGlyphs(const QString& text) {
  QTextLayout layout(text, fonts::system(12));
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  return std::ranges::none_of(layout.glyphRuns(),
                              [](const QGlyphRun& run) { return run.glyphIndexes().contains(0U); });
}

void drawTile(QPainter& painter, const QRectF& frame, const QStringList& lines, const QColor& color) {
  const double side = std::min(frame.width(), frame.height()) * tileSide;
  QRectF tile(0, 0, side, side);
  tile.moveCenter(frame.center());
  QColor faint = color;
  faint.setAlphaF(color.alphaF() * 0.45F);
  painter.setPen(QPen(faint, 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(tile.adjusted(0.5, 0.5, -0.5, -0.5), side / 6, side / 6);
  QFont font = fonts::monospaced(static_cast<int>(side * 0.38), QFont::DemiBold);
  painter.setFont(font);
  painter.setPen(color);
  const double half = (side - 4) / 2;
  for (int i = 0; i < lines.size(); ++i) {
    const QRectF line(tile.left(), tile.top() + 2 + i * half, side, half);
    painter.drawText(line, Qt::AlignCenter, lines[i]);
  }
}

QString cacheKey(const QString& text, int size, const QColor& color, QSizeF frame, double ratio) {
  return QStringLiteral("%1|%2|%3|%4x%5|%6")
      .arg(text)
      .arg(size)
      .arg(color.rgba())
      .arg(frame.width())
      .arg(frame.height())
      .arg(ratio);
}

}  // namespace

EmojiGlyphs::EmojiGlyphs() : cache_(cacheBytes) {}

void EmojiGlyphs::draw(QPainter& painter, const QRectF& frame, const QString& text, int size,
                       const QColor& color) {
  const double ratio = painter.device()->devicePixelRatio() * painter.transform().m11();
  const QString key = cacheKey(text, size, color, frame.size(), ratio);
  if (const QImage* kept = cache_.object(key)) {
    painter.drawImage(frame.topLeft(), *kept);
    return;
  }
  const QImage image = render(text, size, color, frame.size(), ratio);
  painter.drawImage(frame.topLeft(), image);
  cache_.insert(key, new QImage(image), image.sizeInBytes());
}

QImage EmojiGlyphs::render(const QString& text, int size, const QColor& color, QSizeF frameSize,
                           double pixelRatio) {
  QImage image(static_cast<int>(std::lround(frameSize.width() * pixelRatio)),
               static_cast<int>(std::lround(frameSize.height() * pixelRatio)),
               QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(pixelRatio);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.setPen(color);
  const QRectF frame(QPointF(0, 0), frameSize);
  const QList<QImage> pictures = isEmoji(text) ? font_.pictures(text) : QList<QImage>();
  if (!pictures.isEmpty()) {
    drawPictures(painter, frame, pictures, size);
  } else if (needsTile(text)) {
    drawTile(painter, frame, tileLines(text), color);
  } else if (isShort(text)) {
    drawGlyphLine(painter, frame, text, fonts::system(size), 0);
  } else if (!drawGlyphLine(painter, frame, text.simplified(), fonts::system(size), smallestShrink)) {
    drawText(painter, frame, text.simplified(), fonts::system(size));
  }
  return image;
}

bool EmojiGlyphs::needsTile(const QString& text) {
  if (isEmoji(text)) return !font_.canDraw(text);
  return isShort(text) && !hasGlyphs(text);
}

QStringList EmojiGlyphs::tileLines(const QString& text) {
  const auto codePoints = text.toUcs4();
  const QString hex =
      QString::number(codePoints.isEmpty() ? 0 : codePoints.first(), 16).toUpper().rightJustified(4, u'0');
  const auto first = (hex.size() + 1) / 2;
  return {hex.left(first), hex.mid(first)};
}

}  // namespace tessarin::ui
