#include "ui/settings/SnippetRow.h"

#include <QStyle>

namespace tessarin::ui {
namespace {

/// In the middle of the row's height, ending at `right`.
QRect endingAt(int right, const QRect& row, const QSize& size) {
  return {right - size.width(), row.center().y() - size.height() / 2, size.width(), size.height()};
}

}  // namespace

SnippetRow::SnippetRow(const QRect& row, const RowButtonSizes& sizes, Qt::LayoutDirection direction) {
  remove = endingAt(row.right() + 1 - padding, row, sizes.remove);
  edit = endingAt(remove.left() - buttonSpacing, row, sizes.edit);
  texts = row.adjusted(padding, 0, 0, 0);
  texts.setRight(edit.left() - spacing);
  for (QRect* part : {&texts, &edit, &remove}) *part = QStyle::visualRect(direction, row, *part);
}

RowButton SnippetRow::buttonAt(const QPoint& point) const {
  if (edit.contains(point)) return RowButton::edit;
  if (remove.contains(point)) return RowButton::remove;
  return RowButton::none;
}

}  // namespace tessarin::ui
