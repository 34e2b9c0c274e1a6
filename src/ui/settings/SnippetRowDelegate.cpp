#include "ui/settings/SnippetRowDelegate.h"

#include <QApplication>
#include <QFontMetrics>
#include <QPainter>
#include <QPushButton>
#include <QStyleOptionButton>
#include <algorithm>

#include "ui/settings/EmojiLine.h"
#include "ui/settings/SnippetListModel.h"
#include "ui/style/Colors.h"
#include "ui/style/TextStyle.h"

namespace tessarin::ui {
namespace {

constexpr int snippetLineSpacing = 2;
constexpr int snippetRowPadding = 6;
/// The most of the row that the replacement takes from trigger and name.
constexpr double replacementShare = 0.5;

QColor textColor(const QStyleOptionViewItem& option) {
  const bool isSelected = option.state.testFlag(QStyle::State_Selected);
  const auto group = option.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  return option.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text);
}

/// At the side where lines begin in the window; within the line, the text's own direction holds.
void drawElided(QPainter& painter, const QRect& frame, const QFont& font, const QColor& color,
                const QString& text) {
  const Qt::LayoutDirection around = painter.layoutDirection();
  const auto side = around == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft;
  painter.setFont(font);
  painter.setPen(color);
  painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
  painter.drawText(frame, static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter) | Qt::TextSingleLine,
                   QFontMetrics(font).elidedText(text, Qt::ElideRight, frame.width()));
  painter.setLayoutDirection(around);
}

}  // namespace

SnippetRowDelegate::SnippetRowDelegate(const QPushButton& edit, const QPushButton& remove, QObject* parent)
    : QStyledItemDelegate(parent), edit_(edit), remove_(remove) {}

RowButtonSizes SnippetRowDelegate::buttonSizes() const {
  return {edit_.sizeHint(), remove_.sizeHint()};
}

const SnippetRowDelegate::Fonts& SnippetRowDelegate::fontsFor(const QFont& base) const {
  if (!fonts_ || fonts_->base != base) {
    fonts_ = Fonts{base, fontOf(TextStyle::title2, base), fontOf(TextStyle::monospacedBody, base),
                   fontOf(TextStyle::caption, base)};
  }
  return *fonts_;
}

QSize SnippetRowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const {
  const Fonts& fonts = fontsFor(option.font);
  const int lines =
      QFontMetrics(fonts.trigger).height() + snippetLineSpacing + QFontMetrics(fonts.name).height();
  const int height = std::max({lines, QFontMetrics(fonts.replacement).height(), edit_.sizeHint().height()});
  return {0, height + 2 * snippetRowPadding};
}

void SnippetRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  painter->save();
  painter->setLayoutDirection(option.direction);
  const QStyle* style = option.widget != nullptr ? option.widget->style() : QApplication::style();
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, painter, option.widget);
  const SnippetRow row(option.rect, buttonSizes(), option.direction);
  paintTexts(*painter, option, index, row.texts);
  const auto isHot = [&](RowButton button) { return hot_.button == button && hot_.index == index; };
  paintButton(*painter, option, edit_, row.edit, isHot(RowButton::edit));
  paintButton(*painter, option, remove_, row.remove, isHot(RowButton::remove));
  if (option.state.testFlag(QStyle::State_HasFocus)) {
    QStyleOptionFocusRect focus;
    static_cast<QStyleOption&>(focus) = option;
    focus.backgroundColor = option.palette.color(QPalette::Highlight);
    style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, option.widget);
  }
  painter->restore();
}

void SnippetRowDelegate::paintTexts(QPainter& painter, const QStyleOptionViewItem& option,
                                    const QModelIndex& index, const QRect& frame) const {
  const Fonts& fonts = fontsFor(option.font);
  const QColor color = textColor(option);
  const EmojiLine replacement(index.data(SnippetListModel::replacementRole).toString(), fonts.replacement,
                              frame.width() * replacementShare);
  replacement.draw(painter, frame, color, glyphs_);

  QRect lines = frame;
  lines.setLeft(frame.left() + static_cast<int>(replacement.width()) + SnippetRow::spacing);
  lines = QStyle::visualRect(option.direction, frame, lines);
  const int triggerHeight = QFontMetrics(fonts.trigger).height();
  const int nameHeight = QFontMetrics(fonts.name).height();
  const int top = frame.center().y() - (triggerHeight + snippetLineSpacing + nameHeight) / 2 + 1;
  const QRect trigger(lines.left(), top, lines.width(), triggerHeight);
  const QRect name(lines.left(), trigger.bottom() + 1 + snippetLineSpacing, lines.width(), nameHeight);
  drawElided(painter, trigger, fonts.trigger, color, index.data(SnippetListModel::triggerRole).toString());
  const double secondaryOpacity = colorOf(ColorRole::secondary, option.palette).alphaF();
  drawElided(painter, name, fonts.name, withOpacity(color, secondaryOpacity),
             index.data(SnippetListModel::nameRole).toString());
}

void SnippetRowDelegate::paintButton(QPainter& painter, const QStyleOptionViewItem& option,
                                     const QPushButton& like, const QRect& frame, bool isHot) const {
  QStyleOptionButton button;
  button.initFrom(&like);
  button.rect = frame;
  button.direction = option.direction;
  button.state = QStyle::State_Enabled | (option.state & QStyle::State_Active);
  button.state |= isHot && hot_.isPressed ? QStyle::State_Sunken : QStyle::State_Raised;
  if (isHot) button.state |= QStyle::State_MouseOver;
  button.text = like.text();
  button.icon = like.icon();
  button.iconSize = like.iconSize();
  painter.setFont(like.font());
  like.style()->drawControl(QStyle::CE_PushButton, &button, &painter, &like);
}

}  // namespace tessarin::ui
