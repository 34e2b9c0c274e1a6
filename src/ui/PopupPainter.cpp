#include "ui/PopupPainter.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "text/Graphemes.h"
#include "ui/KeyHintRow.h"

namespace tessarin::ui {
namespace {

constexpr double headerPadding = 12;
constexpr double popupRowPadding = 10;
constexpr double popupRowSpacing = 8;
constexpr double emojiSide = 28;
constexpr double highlightInset = 4;
constexpr double indicatorWidth = 3;

double pixelRatioOf(const QPainter& painter) {
  return painter.device()->devicePixelRatio() * painter.transform().m11();
}

/// What is seen where `above` is painted on `below`.
QColor blended(const QColor& above, const QColor& below) {
  const float share = above.alphaF();
  const float rest = below.alphaF() * (1 - share);
  const auto mixed = [&](float first, float second) {
    return (first * share + second * rest) / (share + rest);
  };
  return QColor::fromRgbF(mixed(above.redF(), below.redF()), mixed(above.greenF(), below.greenF()),
                          mixed(above.blueF(), below.blueF()), share + rest);
}

constexpr int cornerSide = static_cast<int>(PopupLayout::cornerRadius) + 1;

QRegion corners(const QRectF& card) {
  const QRect whole = card.toAlignedRect();
  return QRegion(whole) - QRegion(whole.adjusted(cornerSide, 0, -cornerSide, 0)) -
         QRegion(whole.adjusted(0, cornerSide, 0, -cornerSide));
}

QColor whiteAt(double opacity) {
  return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}

}  // namespace

QString matchCount(std::size_t count) {
  if (count == 1) return QCoreApplication::translate("Popup", "1 match");
  const int shown = static_cast<int>(count);
  return QCoreApplication::translate("Popup", "%n matches", nullptr, shown);
}

double PopupPainter::drawLeft(QPainter& painter, const QRectF& band, double x, double most,
                              const QString& text) {
  const TextLines::Line& line = lines_.line(painter.font(), text, most);
  TextLines::draw(painter, band, x, line);
  return x + std::min(most, line.width);
}

double PopupPainter::drawRight(QPainter& painter, const QRectF& band, double right, const QString& text) {
  const TextLines::Line& line = lines_.line(painter.font(), text);
  TextLines::draw(painter, band, right - line.width, line);
  return right - line.width;
}

void PopupPainter::paint(QPainter& painter, const PopupContent& content, const PopupLayout& layout,
                         const PopupView& view) {
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  paintCard(painter, layout, view.isTranslucent);
  if (!layout.header().isNull()) paintHeader(painter, layout.header(), content);
  if (!layout.picker().isNull()) paintPicker(painter, content, layout);
  paintList(painter, content, layout, view);
  if (!layout.footer().isNull()) drawKeyHints(painter, layout.footer(), content.hints, theme_, lines_);
  paintDividers(painter, layout);
}

void PopupPainter::paintCard(QPainter& painter, const PopupLayout& layout, bool isTranslucent) const {
  constexpr double translucentOpacity = 0.94;
  const QRectF card(QPointF(0, 0), layout.size());
  QColor ground = theme_.card;
  if (isTranslucent) ground.setAlphaF(translucentOpacity);
  const double width = std::max(0.5, 1 / pixelRatioOf(painter));
  paintSides(painter, card, ground, width);
  painter.save();
  painter.setClipRegion(corners(card));
  const double inset = width / 2;
  painter.setPen(Qt::NoPen);
  painter.setBrush(ground);
  painter.setCompositionMode(QPainter::CompositionMode_Source);  // as the sides are painted
  painter.drawRoundedRect(card, PopupLayout::cornerRadius, PopupLayout::cornerRadius);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
  painter.setPen(QPen(theme_.primaryAt(0.1), width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(card.adjusted(inset, inset, -inset, -inset), PopupLayout::cornerRadius - inset,
                          PopupLayout::cornerRadius - inset);
  painter.restore();
}

// Qt hands a large shape with curves to several threads, and waking them takes longer than painting it. Most
// of the card has none.
void PopupPainter::paintSides(QPainter& painter, const QRectF& card, const QColor& ground,
                              double width) const {
  const QColor line = blended(theme_.primaryAt(0.1), ground);
  painter.save();
  painter.setCompositionMode(QPainter::CompositionMode_Source);
  painter.setRenderHint(QPainter::Antialiasing, false);
  const QRectF across = card.adjusted(0, cornerSide, 0, -cornerSide);
  const QRectF upright = card.adjusted(cornerSide, 0, -cornerSide, 0);
  for (const QRectF& band : {across, upright}) painter.fillRect(band, line);
  painter.fillRect(across.adjusted(width, 0, -width, 0), ground);
  painter.fillRect(upright.adjusted(0, width, 0, -width), ground);
  painter.restore();
}

void PopupPainter::paintHeader(QPainter& painter, const QRectF& band, const PopupContent& content) {
  constexpr double spacing = 4;
  painter.setFont(fonts::system(10));
  painter.setPen(theme_.secondary);
  const double counter =
      drawRight(painter, band, band.right() - headerPadding, matchCount(content.rows.size()));

  painter.setFont(fonts::system(12));
  const QString dots = QStringLiteral("…");
  const double dotsWidth = lines_.line(painter.font(), dots).width;
  const double room = counter - headerPadding - dotsWidth - 2 * spacing;

  painter.setFont(fonts::monospaced(12, QFont::Medium));
  painter.setPen(theme_.primaryAt(0.7));
  const double end = drawLeft(painter, band, headerPadding, room,
                              QString::fromStdString(content.triggerCharacter + content.query));
  painter.setFont(fonts::system(12));
  painter.setPen(theme_.secondary);
  drawLeft(painter, band, end + spacing, dotsWidth, dots);
}

void PopupPainter::paintPicker(QPainter& painter, const PopupContent& content, const PopupLayout& layout) {
  constexpr int fontSize = 24;
  constexpr double radius = 6;
  constexpr double border = 2;
  for (int i = 0; i < static_cast<int>(content.skinToneVariants.size()); ++i) {
    const QRectF cell = layout.variant(i);
    if (i == content.skinToneSelectedIndex) {
      painter.setBrush(theme_.accentAt(0.3));
      painter.setPen(QPen(theme_.accent, border));
      painter.drawRoundedRect(cell.adjusted(1, 1, -1, -1), radius - 1, radius - 1);
    }
    glyphs_.draw(painter, cell, QString::fromStdString(content.skinToneVariants[static_cast<std::size_t>(i)]),
                 fontSize, theme_.primary);
  }
}

void PopupPainter::paintList(QPainter& painter, const PopupContent& content, const PopupLayout& layout,
                             const PopupView& view) {
  const QRectF list = layout.list();
  if (content.rows.empty()) {
    painter.setFont(fonts::system(12));
    painter.setPen(theme_.secondary);
    painter.drawText(list, Qt::AlignCenter, QCoreApplication::translate("Popup", "No matches"));
    return;
  }
  painter.save();
  painter.setClipRect(list, Qt::IntersectClip);
  for (int i = 0; i < static_cast<int>(content.rows.size()); ++i) {
    const QRectF rect = layout.row(i, view.scroll);
    if (rect.intersects(list)) paintRow(painter, rect, content, i, view.hoveredRow == i);
  }
  paintScrollIndicator(painter, layout, view.scroll);
  painter.restore();
}

void PopupPainter::paintRow(QPainter& painter, const QRectF& rect, const PopupContent& content, int index,
                            bool isHovered) {
  const PopupRow& row = content.rows[static_cast<std::size_t>(index)];
  const bool isSelected = index == content.selectedIndex;
  if (isSelected || isHovered) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(isSelected ? theme_.accent : theme_.primaryAt(0.06));
    painter.drawRoundedRect(rect.adjusted(highlightInset, 0, -highlightInset, 0), 4, 4);
  }
  const QColor primary = isSelected ? QColor(Qt::white) : theme_.primary;
  const QRectF emoji(rect.left() + popupRowPadding, rect.center().y() - emojiSide / 2, emojiSide, emojiSide);
  const int size = text::characterCount(row.replacement) <= 2 ? 20 : 10;
  glyphs_.draw(painter, emoji, QString::fromStdString(row.replacement), size, primary);

  double right = rect.right() - popupRowPadding;
  if (row.supportsSkinTones) {
    painter.setFont(fonts::system(10));
    painter.setPen(isSelected ? whiteAt(0.6) : theme_.primaryAt(0.275));
    right = drawRight(painter, rect, right, QStringLiteral("→")) - popupRowSpacing;
  }
  double x = emoji.right() + popupRowSpacing;
  painter.setFont(fonts::monospaced(13, QFont::Medium));
  painter.setPen(primary);
  const std::string trigger = content.triggerCharacter + row.trigger + content.triggerCharacter;
  x = drawLeft(painter, rect, x, right - x, QString::fromStdString(trigger)) + popupRowSpacing;
  painter.setFont(fonts::system(12));
  painter.setPen(isSelected ? whiteAt(0.8) : theme_.secondary);
  if (right > x) drawLeft(painter, rect, x, right - x, QString::fromStdString(row.name));
}

void PopupPainter::paintScrollIndicator(QPainter& painter, const PopupLayout& layout, double scroll) const {
  if (layout.maxScroll() <= 0 || layout.list().height() < 2 * indicatorWidth) return;
  const QRectF list = layout.list().adjusted(0, 2, 0, -2);
  const double whole = layout.list().height() + layout.maxScroll();
  const double length = std::max(12.0, list.height() * layout.list().height() / whole);
  const double top = list.top() + (list.height() - length) * scroll / layout.maxScroll();
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme_.primaryAt(0.3));
  painter.drawRoundedRect(QRectF(list.right() - indicatorWidth - 0.5, top, indicatorWidth, length),
                          indicatorWidth / 2, indicatorWidth / 2);
}

void PopupPainter::paintDividers(QPainter& painter, const PopupLayout& layout) const {
  const double ratio = pixelRatioOf(painter);
  const double thickness = std::max(1.0, std::floor(ratio)) / ratio;
  for (const double y : layout.dividers()) {
    const double inset = PopupLayout::dividerInset;
    painter.fillRect(
        QRectF(inset, std::round(y * ratio) / ratio, layout.size().width() - 2 * inset, thickness),
        theme_.primaryAt(0.1));
  }
}

}  // namespace tessarin::ui
