#include "ui/style/FlowGrid.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace tessarin::ui {

FlowGrid::FlowGrid(const Spacing& spacing, QWidget* parent) : QLayout(parent), spacing_(spacing) {
  setContentsMargins(0, 0, 0, 0);
}

FlowGrid::~FlowGrid() {
  for (QLayoutItem* item : items_) delete item;
}

void FlowGrid::clear() {
  while (QLayoutItem* item = takeAt(0)) {
    if (item->widget()) item->widget()->deleteLater();
    delete item;
  }
  invalidate();
}

QLayoutItem* FlowGrid::itemAt(int index) const {
  return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : nullptr;
}

QLayoutItem* FlowGrid::takeAt(int index) {
  QLayoutItem* item = itemAt(index);
  if (item) items_.erase(items_.begin() + index);
  return item;
}

int FlowGrid::columnsIn(int width) const {
  return std::max(1, (width + spacing_.columns) / (spacing_.narrowest + spacing_.columns));
}

int FlowGrid::rowHeight() const {
  int height = 0;
  for (const QLayoutItem* item : items_) height = std::max(height, item->sizeHint().height());
  return height;
}

int FlowGrid::heightForWidth(int width) const {
  if (items_.empty()) return 0;
  const int rows = (count() + columnsIn(width) - 1) / columnsIn(width);
  return rows * (rowHeight() + spacing_.rows) - spacing_.rows;
}

QSize FlowGrid::minimumSize() const {
  return {spacing_.narrowest, rowHeight()};  // the width decides on more
}

void FlowGrid::setGeometry(const QRect& rect) {
  QLayout::setGeometry(rect);
  const int columns = columnsIn(rect.width());
  const int height = rowHeight();
  // The pixels that are left over widen some columns, so that the last one ends at the edge.
  const auto left = [&](int column) { return column * (rect.width() + spacing_.columns) / columns; };
  for (int index = 0; index < count(); ++index) {
    const int column = index % columns;
    const QRect cell(rect.x() + left(column), rect.y() + index / columns * (height + spacing_.rows),
                     left(column + 1) - left(column) - spacing_.columns, height);
    items_[static_cast<std::size_t>(index)]->setGeometry(
        QStyle::visualRect(parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight, rect, cell));
  }
}

}  // namespace tessarin::ui
