#pragma once

#include <QFont>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>
#include <optional>

#include "ui/EmojiGlyphs.h"
#include "ui/settings/SnippetRow.h"

class QPushButton;

namespace tessarin::ui {

/// Paints the rows of the snippet list. Painted buttons look like the real ones, which stand in the current
/// row only.
class SnippetRowDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  /// A button that the pointer is on, and whether it is pressed.
  struct HotButton {
    QPersistentModelIndex index;
    RowButton button = RowButton::none;
    bool isPressed = false;
    bool operator==(const HotButton&) const = default;
  };

  /// The buttons that the painted ones look like; they must outlive the delegate.
  SnippetRowDelegate(const QPushButton& edit, const QPushButton& remove, QObject* parent);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  RowButtonSizes buttonSizes() const;
  void setHot(HotButton hot) { hot_ = std::move(hot); }

 private:
  struct Fonts {
    QFont base, replacement, trigger, name;
  };
  const Fonts& fontsFor(const QFont& base) const;
  void paintTexts(QPainter& painter, const QStyleOptionViewItem& option, const QModelIndex& index,
                  const QRect& frame) const;
  void paintButton(QPainter& painter, const QStyleOptionViewItem& option, const QPushButton& like,
                   const QRect& frame, bool isHot) const;

  const QPushButton& edit_;
  const QPushButton& remove_;
  HotButton hot_;
  mutable std::optional<Fonts> fonts_;
  mutable EmojiGlyphs glyphs_;
};

}  // namespace tessarin::ui
