#include "ui/settings/MostUsedDelegate.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>

#include "ui/style/Colors.h"
#include "ui/style/TextStyle.h"

namespace tessarin::ui {
namespace {

constexpr int rankWidth = 24;
constexpr int gap = 8;
constexpr int mostUsedSidePadding = 8;
constexpr int mostUsedRowPadding = 4;
constexpr double currentOpacity = 0.08;

/// The row, from its leading edge on.
class Row {
 public:
  Row(QPainter& painter, const QStyleOptionViewItem& option)
      : painter_(painter),
        option_(option),
        left_(option.rect.adjusted(mostUsedSidePadding, 0, -mostUsedSidePadding, 0)) {}

  void leading(int width, Qt::Alignment alignment, const QFont& font, ColorRole color, const QString& text) {
    draw(QRect(left_.left(), left_.top(), width, left_.height()), alignment, font, color, text);
    left_.setLeft(left_.left() + width + gap);
  }
  void trailing(const QFont& font, ColorRole color, const QString& text) {
    const int width = QFontMetrics(font).horizontalAdvance(text);
    draw(QRect(left_.right() + 1 - width, left_.top(), width, left_.height()), Qt::AlignRight, font, color,
         text);
    left_.setRight(left_.right() - width - gap);
  }
  int room() const { return left_.width(); }

 private:
  void draw(const QRect& place, Qt::Alignment alignment, const QFont& font, ColorRole color,
            const QString& text) {
    painter_.setFont(font);
    painter_.setPen(colorOf(color, option_.palette));
    const Qt::Alignment visual = QStyle::visualAlignment(option_.direction, alignment) | Qt::AlignAbsolute;
    painter_.drawText(QStyle::visualRect(option_.direction, option_.rect, place),
                      static_cast<int>(visual | Qt::AlignVCenter) | Qt::TextSingleLine, text);
  }

  QPainter& painter_;
  const QStyleOptionViewItem& option_;
  QRect left_;
};

}  // namespace

void MostUsedDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                             const QModelIndex& index) const {
  painter->save();
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    painter->fillRect(option.rect, withOpacity(colorOf(ColorRole::primary, option.palette), currentOpacity));
  }
  QFont medium = option.font;
  medium.setWeight(QFont::Medium);
  const QFont monospaced = fontOf(TextStyle::monospacedBody, option.font);
  const QString rank = QString::number(index.row() + 1) + '.';
  const int rankRoom = std::max(rankWidth, QFontMetrics(option.font).horizontalAdvance("10."));
  Row row(*painter, option);
  row.leading(rankRoom, Qt::AlignRight, option.font, ColorRole::secondary, rank);
  row.trailing(medium, ColorRole::secondary, index.data(countRole).toString());
  const QString trigger =
      QFontMetrics(monospaced).elidedText(index.data().toString(), Qt::ElideMiddle, row.room());
  row.leading(row.room(), Qt::AlignLeft, monospaced, ColorRole::primary, trigger);
  painter->restore();
}

QSize MostUsedDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
  const int text = std::max(QFontMetrics(option.font).height(),
                            QFontMetrics(fontOf(TextStyle::monospacedBody, option.font)).height());
  return {0, text + 2 * mostUsedRowPadding};
}

}  // namespace tessarin::ui
