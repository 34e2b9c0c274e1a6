#include "ui/PopupLayout.h"

#include <algorithm>
#include <cmath>

#include "popup/PopupPlacement.h"

namespace tessarin::ui {
namespace {

constexpr double dividerHeight = 1;
constexpr double pickerPaddingX = 12;
constexpr double pickerPaddingY = 6;
constexpr double variantSpacing = 4;

/// Heights of the header's and the footer's text bands.
struct Bands {
  double header;
  double footer;
};
constexpr Bands roomy{33, 29};  // with their dividers 64
constexpr Bands compact{27, 23};

/// A picker beside one or two rows leaves no room to spare.
Bands bandsFor(const PopupContent& content) {
  return content.skinToneMode && content.rows.size() <= 2 ? compact : roomy;
}

}  // namespace

PopupLayout::PopupLayout(const PopupContent& content, QSizeF size)
    : size_(size),
      rowCount_(static_cast<int>(content.rows.size())),
      variantCount_(content.skinToneMode ? static_cast<int>(content.skinToneVariants.size()) : 0) {
  const Bands bands = bandsFor(content);
  const double footerHeight = rowCount_ > 0 ? bands.footer + dividerHeight : 0;
  list_ = QRectF(0, 0, size.width(), size.height() - footerHeight);
  placeHeader(!content.query.empty(), bands.header);
  if (content.skinToneMode) placePicker();
  if (rowCount_ == 0) return;
  dividers_.push_back(list_.bottom());
  footer_ = QRectF(0, list_.bottom() + dividerHeight, size.width(), bands.footer);
}

QSizeF PopupLayout::sizeFor(int rowCount) {
  return {popupWidth, popupHeight(rowCount)};
}

void PopupLayout::placeHeader(bool isShown, double height) {
  if (!isShown) return;
  header_ = QRectF(0, 0, size_.width(), height);
  dividers_.push_back(height);
  list_.setTop(height + dividerHeight);
}

void PopupLayout::placePicker() {
  const double height = std::min(variantSide + 2 * pickerPaddingY, list_.height());
  picker_ = QRectF(0, list_.top(), size_.width(), height);
  // Where the list has no room left, the footer's divider ends the picker.
  const bool hasList = list_.bottom() - picker_.bottom() > dividerHeight;
  if (hasList) dividers_.push_back(picker_.bottom());
  list_.setTop(hasList ? picker_.bottom() + dividerHeight : list_.bottom());
}

QRectF PopupLayout::row(int index, double scroll) const {
  return {0, list_.top() + index * rowHeight - scroll, size_.width(), rowHeight};
}

QRectF PopupLayout::variant(int index) const {
  const double top = picker_.top() + (picker_.height() - variantSide) / 2;
  return {pickerPaddingX + index * (variantSide + variantSpacing), top, variantSide, variantSide};
}

double PopupLayout::maxScroll() const {
  return std::max(0.0, rowCount_ * rowHeight - list_.height());
}

double PopupLayout::scrollCentring(int index) const {
  return clampedScroll((index + 0.5) * rowHeight - list_.height() / 2);
}

double PopupLayout::clampedScroll(double scroll) const {
  return std::clamp(scroll, 0.0, maxScroll());
}

std::optional<int> PopupLayout::rowAt(QPointF point, double scroll) const {
  if (point.x() < 0 || point.x() >= size_.width() || point.y() < list_.top() || point.y() >= list_.bottom())
    return std::nullopt;
  const int index = static_cast<int>(std::floor((point.y() - list_.top() + scroll) / rowHeight));
  return index < rowCount_ ? std::optional(index) : std::nullopt;
}

std::optional<int> PopupLayout::variantAt(QPointF point) const {
  for (int index = 0; index < variantCount_; ++index) {
    if (variant(index).contains(point)) return index;
  }
  return std::nullopt;
}

}  // namespace tessarin::ui
