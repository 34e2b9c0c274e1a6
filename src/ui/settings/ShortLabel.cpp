#include "ui/settings/ShortLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <algorithm>
#include <cmath>

namespace tessarin::ui {

ShortLabel::ShortLabel(int mostLines, TextStyle style, ColorRole color, QWidget* parent)
    : StyledLabel({}, style, color, parent), mostLines_(mostLines) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

/// A whole number of points that no descender leaves: the font's own number is rounded.
int ShortLabel::lineHeight() const {
  return static_cast<int>(std::ceil(QFontMetricsF(font()).lineSpacing()));
}

/// Calls `visit(line, top)` for each line that is shown and returns how many there are.
template <class Visit>
int ShortLabel::layOut(int width, Visit visit) const {
  QString shown = text();
  shown.replace('\n', QChar::LineSeparator);
  int lines = 0;
  QTextLayout layout(shown, font(), this);
  QTextOption option(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute);
  option.setTextDirection(shown.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  while (lines < mostLines_) {
    QTextLine line = layout.createLine();
    if (!line.isValid()) break;
    line.setLineWidth(width);
    ++lines;
    const bool goesOn = line.textStart() + line.textLength() < shown.size();
    const QString rest = goesOn && lines == mostLines_ ? shown.mid(line.textStart()) : QString();
    visit(line, (lines - 1) * lineHeight(), rest);
  }
  layout.endLayout();
  return std::max(lines, 1);
}

int ShortLabel::heightForWidth(int width) const {
  return layOut(width, [](const QTextLine&, int, const QString&) {}) * lineHeight();
}

QSize ShortLabel::sizeHint() const {
  // Emoji and wide marks may need a little more than the advance says.
  int widest = 0;
  for (const QString& line : text().split('\n')) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(line) + 2);
  }
  return {widest, lineHeight()};
}

QSize ShortLabel::minimumSizeHint() const {
  return {std::min(sizeHint().width(), fontMetrics().horizontalAdvance("…") * 4), lineHeight()};
}

void ShortLabel::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::WindowText));
  painter.setFont(font());
  painter.setLayoutDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  const Qt::Alignment side = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignAbsolute;
  layOut(width(), [&](const QTextLine& line, int top, const QString& rest) {
    if (rest.isEmpty()) {
      line.draw(&painter, QPointF(0, top));
      return;
    }
    const QString cut = rest.section(QChar::LineSeparator, 0, 0) + QStringLiteral("…");
    const QRect place(0, top, width(), lineHeight());
    painter.drawText(place, static_cast<int>(side) | Qt::TextSingleLine,
                     fontMetrics().elidedText(cut, Qt::ElideRight, width()));
  });
}

}  // namespace tessarin::ui
