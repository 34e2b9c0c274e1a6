#pragma once

#include <QStyledItemDelegate>

namespace tessarin::ui {

/// Draws a row of the most used: its rank, its text in monospaced type, and its count at the far end.
class MostUsedDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  static constexpr int countRole = Qt::UserRole;  ///< the count as text

  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace tessarin::ui
