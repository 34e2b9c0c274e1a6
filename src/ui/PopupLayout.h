#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <optional>
#include <vector>

#include "platform/PopupPresenter.h"

namespace tessarin::ui {

/// Where everything stands in the popup's picture, in points from its top left corner. Header and footer
/// share the 64 points that are not rows; the skin-tone picker takes its room from the list, which scrolls.
class PopupLayout {
 public:
  static constexpr double cornerRadius = 8;
  static constexpr double rowHeight = 36;
  static constexpr double dividerInset = 8;
  static constexpr double variantSide = 36;

  PopupLayout() = default;
  PopupLayout(const PopupContent& content, QSizeF size);
  /// The size that the popup has for that many rows.
  static QSizeF sizeFor(int rowCount);

  QSizeF size() const { return size_; }
  /// The bands from top to bottom, dividers left out; null where there is none.
  const QRectF& header() const { return header_; }
  const QRectF& picker() const { return picker_; }
  const QRectF& list() const { return list_; }
  const QRectF& footer() const { return footer_; }
  /// The upper edge of each divider.
  const std::vector<double>& dividers() const { return dividers_; }

  /// `scroll`: how far the list has been moved up.
  QRectF row(int index, double scroll) const;
  QRectF variant(int index) const;
  double maxScroll() const;
  /// The scroll that puts this row in the middle of the list, as far as the list reaches.
  double scrollCentring(int index) const;
  double clampedScroll(double scroll) const;

  std::optional<int> rowAt(QPointF point, double scroll) const;
  std::optional<int> variantAt(QPointF point) const;

 private:
  void placeHeader(bool isShown, double height);
  void placePicker();

  QSizeF size_;
  QRectF header_;
  QRectF picker_;
  QRectF list_;
  QRectF footer_;
  std::vector<double> dividers_;
  int rowCount_ = 0;
  int variantCount_ = 0;
};

}  // namespace tessarin::ui
