#include "ui/KeyHintRow.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QString>
#include <algorithm>
#include <cmath>

namespace tessarin::ui {
namespace {

constexpr double bandPadding = 12;
constexpr double hintSpacing = 12;
constexpr double leastSpacing = 4;
constexpr double keyPaddingX = 4;
constexpr double keyPaddingY = 1;
constexpr double keyToLabel = 3;
constexpr double keyRadius = 3;

struct Hint {
  TextLines::Line key;
  TextLines::Line label;
  double capWidth() const { return key.width + 2 * keyPaddingX; }
  double width() const { return capWidth() + keyToLabel + label.width; }
};

struct Fonts {
  QFont key;
  QFont label;
};

Hint measure(const PopupKeyHint& hint, const Fonts& fonts, TextLines& lines) {
  return {lines.line(fonts.key, QString::fromStdString(hint.key)),
          lines.line(fonts.label, QString::fromStdString(hint.label))};
}

double totalWidth(const std::vector<Hint>& hints) {
  double total = 0;
  for (const Hint& hint : hints) total += hint.width();
  return total;
}

void drawHint(QPainter& painter, const QRectF& band, double x, const Hint& hint, const Fonts& fonts,
              const PopupTheme& theme) {
  const double height = std::ceil(QFontMetricsF(fonts.key).height()) + 2 * keyPaddingY;
  const QRectF cap(x, std::round(band.center().y() - height / 2), hint.capWidth(), height);
  painter.setPen(Qt::NoPen);
  painter.setBrush(theme.primaryAt(0.1));
  painter.drawRoundedRect(cap, keyRadius, keyRadius);
  painter.setFont(fonts.key);
  painter.setPen(theme.primary);
  TextLines::draw(painter, cap, cap.left() + keyPaddingX, hint.key);
  painter.setFont(fonts.label);
  painter.setPen(theme.secondary);
  TextLines::draw(painter, cap, cap.right() + keyToLabel, hint.label);
}

}  // namespace

void drawKeyHints(QPainter& painter, const QRectF& band, const std::vector<PopupKeyHint>& hints,
                  const PopupTheme& theme, TextLines& lines) {
  const Fonts hintFonts{fonts::system(9, QFont::DemiBold), fonts::system(9)};
  std::vector<Hint> measured;
  measured.reserve(hints.size());
  for (const PopupKeyHint& hint : hints) measured.push_back(measure(hint, hintFonts, lines));
  const double room = band.width() - 2 * bandPadding;
  const double gaps = std::max<double>(1, static_cast<double>(measured.size()) - 1);
  const double spacing = std::clamp((room - totalWidth(measured)) / gaps, leastSpacing, hintSpacing);
  // What is still too wide is drawn smaller as a whole.
  const double needed = totalWidth(measured) + spacing * gaps;
  const double shrink = std::min(1.0, room / needed);
  painter.save();
  painter.translate(band.left() + bandPadding, band.center().y());
  painter.scale(shrink, shrink);
  double x = 0;
  for (const Hint& hint : measured) {
    drawHint(painter, QRectF(0, -band.height() / 2, band.width(), band.height()), x, hint, hintFonts, theme);
    x += hint.width() + spacing;
  }
  painter.restore();
}

}  // namespace tessarin::ui
