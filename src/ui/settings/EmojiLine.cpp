#include "ui/settings/EmojiLine.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/EmojiGlyphs.h"
#include "ui/EmojiText.h"

namespace tessarin::ui {
namespace {

/// The side of an emoji's square, in sizes of its font.
constexpr double emojiSide = 1.28;

}  // namespace

EmojiLine::EmojiLine(const QString& text, const QFont& font, double maxWidth)
    : font_(font), isRightToLeft_(text.isRightToLeft()) {
  split(text);
  cut(maxWidth);
}

int EmojiLine::emojiSize() const {
  return static_cast<int>(std::round(QFontMetricsF(font_).ascent() * 0.95));
}

EmojiLine::Run EmojiLine::makeRun(const QString& text, bool isEmoji) const {
  if (isEmoji) return {text, true, emojiSize() * emojiSide};
  return {text, false, std::ceil(QFontMetricsF(font_).horizontalAdvance(text))};
}

void EmojiLine::split(const QString& text) {
  const bool isAscii = std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
  if (isAscii) {
    runs_ << makeRun(text, false);
    return;
  }
  QString plain;
  const auto endPlain = [&] {
    if (!plain.isEmpty()) runs_ << makeRun(std::exchange(plain, {}), false);
  };
  for (const QString& character : charactersOf(text)) {
    if (!ui::isEmoji(character)) {
      plain += character;
      continue;
    }
    endPlain();
    runs_ << makeRun(character, true);
  }
  endPlain();
}

void EmojiLine::cut(double maxWidth) {
  if (width() <= maxWidth) return;
  const QString ellipsis = QStringLiteral("…");
  const Run end = makeRun(ellipsis, false);
  double room = maxWidth;
  for (qsizetype i = 0; i < runs_.size(); ++i) {
    const double rest = i + 1 < runs_.size() ? end.width : 0;
    if (runs_[i].width + rest <= room) {
      room -= runs_[i].width;
      continue;
    }
    const Run last = runs_[i];
    runs_.resize(i);
    if (last.isEmoji) {
      runs_ << end;
    } else {
      const QString shorter = last.text + (rest > 0 ? ellipsis : QString());
      runs_ << makeRun(QFontMetricsF(font_).elidedText(shorter, Qt::ElideRight, std::max(room, end.width)),
                       false);
    }
    return;
  }
}

double EmojiLine::width() const {
  double sum = 0;
  for (const Run& run : runs_) sum += run.width;
  return sum;
}

void EmojiLine::draw(QPainter& painter, const QRectF& frame, const QColor& color, EmojiGlyphs& glyphs) const {
  painter.setFont(font_);
  painter.setPen(color);
  double x = painter.layoutDirection() == Qt::RightToLeft ? frame.right() - width() : frame.left();
  const auto drawRun = [&](const Run& run) {
    const QRectF place(x, frame.top(), run.width, frame.height());
    if (run.isEmoji) {
      glyphs.draw(painter, place, run.text, emojiSize(), color);
    } else {
      painter.drawText(
          place, Qt::AlignLeft | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
          run.text);
    }
    x += run.width;
  };
  if (isRightToLeft_) {
    std::for_each(runs_.rbegin(), runs_.rend(), drawRun);
  } else {
    std::for_each(runs_.begin(), runs_.end(), drawRun);
  }
}

}  // namespace tessarin::ui
