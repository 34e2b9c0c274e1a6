#include "ui/TextLines.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace tessarin::ui {
namespace {

/// Some queries' worth, of about twenty lines each.
constexpr qsizetype mostLines = 96;

QString inOneLine(QString text) {
  for (QChar& character : text) {
    if (character.isSpace()) character = u' ';
  }
  return text;
}

}  // namespace

const TextLines::Line& TextLines::line(const QFont& font, const QString& text, double most) {
  const Key key{font, text, most};
  if (const auto known = lines_.constFind(key); known != lines_.cend()) return *known;
  if (lines_.size() >= mostLines) lines_.clear();
  const QFontMetricsF metrics(font);
  const QString whole = inOneLine(text);
  Line line;
  line.width = metrics.horizontalAdvance(whole);
  const bool isTooWide = line.width > most;
  line.text.setText(isTooWide ? metrics.elidedText(whole, Qt::ElideRight, most) : whole);
  if (isTooWide) line.width = metrics.horizontalAdvance(line.text.text());
  line.width = std::ceil(line.width);
  line.text.setTextFormat(Qt::PlainText);
  line.text.prepare({}, font);
  return *lines_.insert(key, line);
}

void TextLines::draw(QPainter& painter, const QRectF& band, double x, const Line& line) {
  const double height = line.text.size().height();
  painter.drawStaticText(QPointF(x, band.top() + (band.height() - height) / 2), line.text);
}

}  // namespace tessarin::ui
