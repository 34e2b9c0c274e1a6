#pragma once

#include <QRect>
#include <QSize>
#include <Qt>

namespace tessarin::ui {

/// What can be clicked in a row of the list.
enum class RowButton { none, edit, remove };

/// The sizes that the style gives the buttons of a row.
struct RowButtonSizes {
  QSize edit;
  QSize remove;
};

/// Where the parts of a row stand, mirrored where text runs from right to left.
struct SnippetRow {
  QRect texts;
  QRect edit;
  QRect remove;

  static constexpr int padding = 8;
  static constexpr int spacing = 12;
  static constexpr int buttonSpacing = 8;

  SnippetRow(const QRect& row, const RowButtonSizes& sizes, Qt::LayoutDirection direction);

  RowButton buttonAt(const QPoint& point) const;
};

}  // namespace tessarin::ui
