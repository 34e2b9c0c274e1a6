#include "ui/settings/EmojiLine.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "ui/EmojiGlyphs.h"
#include "ui/EmojiText.h"

namespace tessarin::ui {
namespace {

/// The height of an emoji, in sizes of the text around it, and the width that it takes, in heights.
constexpr double emojiHeight = 1.15;
constexpr double emojiWidth = 1.2;

}  // namespace

EmojiLine::EmojiLine(const QString& text, const QFont& font, double maxWidth)
    : font_(font), isRightToLeft_(text.isRightToLeft()) {
  split(text);
  cut(maxWidth);
}

int EmojiLine::emojiSize() const {
  return static_cast<int>(std::round(QFontInfo(font_).pixelSize() * emojiHeight));
}

EmojiLine::Run EmojiLine::makeRun(const QString& text, bool isEmoji) const {
  if (isEmoji) return {text, true, emojiSize() * emojiWidth};
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
  const Qt::LayoutDirection around = painter.layoutDirection();
  double x = around == Qt::RightToLeft ? frame.right() - width() : frame.left();
  painter.setLayoutDirection(isRightToLeft_ ? Qt::RightToLeft : Qt::LeftToRight);
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
  painter.setLayoutDirection(around);
}

}  // namespace tessarin::ui
