#pragma once

#include <QString>
#include <cstddef>
#include <optional>

#include "platform/PopupPresenter.h"
#include "ui/EmojiGlyphs.h"
#include "ui/PopupLayout.h"
#include "ui/PopupTheme.h"
#include "ui/TextLines.h"

class QPainter;
class QPalette;

namespace tessarin::ui {

/// "8 matches", in the user's language.
QString matchCount(std::size_t count);

/// What the picture shows beyond its content.
struct PopupView {
  double scroll = 0;              ///< of the list, in points
  std::optional<int> hoveredRow;  ///< the row under the pointer
  bool isTranslucent = false;     ///< what lies behind may shine through; else the card is opaque
  bool operator==(const PopupView&) const = default;
};

/// Paints the popup into any painter, in points from the painter's origin.
class PopupPainter {
 public:
  explicit PopupPainter(const QPalette& palette) : theme_(palette) {}
  void setPalette(const QPalette& palette) { theme_ = PopupTheme(palette); }
  /// The card's colour, opaque: what lies behind the card's edge where nothing blends it with the screen.
  QColor ground() const { return theme_.card; }
  /// Gives back memory while nothing is shown.
  void rest() { glyphs_.rest(); }

  void paint(QPainter& painter, const PopupContent& content, const PopupLayout& layout,
             const PopupView& view);

 private:
  void paintCard(QPainter& painter, const PopupLayout& layout, bool isTranslucent) const;
  void paintSides(QPainter& painter, const QRectF& card, const QColor& ground, double width) const;
  void paintHeader(QPainter& painter, const QRectF& band, const PopupContent& content);
  void paintPicker(QPainter& painter, const PopupContent& content, const PopupLayout& layout);
  void paintList(QPainter& painter, const PopupContent& content, const PopupLayout& layout,
                 const PopupView& view);
  void paintRow(QPainter& painter, const QRectF& rect, const PopupContent& content, int index,
                bool isHovered);
  void paintScrollIndicator(QPainter& painter, const PopupLayout& layout, double scroll) const;
  void paintDividers(QPainter& painter, const PopupLayout& layout) const;

  /// Draws one line, vertically centred, from x on, and answers where it ended.
  double drawLeft(QPainter& painter, const QRectF& band, double x, double most, const QString& text);
  /// Draws one line that ends at `right`, and answers where it began.
  double drawRight(QPainter& painter, const QRectF& band, double right, const QString& text);

  PopupTheme theme_;
  TextLines lines_;
  EmojiGlyphs glyphs_;
};

}  // namespace tessarin::ui
