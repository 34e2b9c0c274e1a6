#include "popup/CaretLocator.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace tessarin {
namespace {

constexpr std::chrono::milliseconds locatingBudget{50};
constexpr Size syntheticCaret{1, 16};

/// Whether any of the rectangle, were it a single point, is on the frame.
bool touches(const Rect& rect, const Rect& frame) {
  return frame.contains({std::clamp(frame.minX(), rect.minX(), rect.maxX()),
                         std::clamp(frame.minY(), rect.minY(), rect.maxY())});
}

bool isFinite(const Rect& rect) {
  return std::isfinite(rect.x) && std::isfinite(rect.y) && std::isfinite(rect.width) &&
         std::isfinite(rect.height);
}

/// Some toolkits answer with uninitialised numbers, and with zeros or minus ones where they do not know.
bool isCredible(const Rect& rect, const ScreenLayout& layout) {
  if (!isFinite(rect) || rect.width < 0 || rect.height < 0) return false;
  if (layout.screens.empty()) return true;
  return std::ranges::any_of(layout.screens, [&rect](const Screen& screen) {
    return rect.width <= screen.frame.width && rect.height <= screen.frame.height &&
           touches(rect, screen.frame);
  });
}

}  // namespace

std::optional<Rect> CaretLocator::caretRect(const ScreenLayout& layout, std::int64_t charactersBefore) {
  asked_.reset();
  context_.reset();
  if (!accessibility_.isTrusted()) return std::nullopt;
  accessibility_.beginBudget(locatingBudget);
  asked_ = accessibility_.systemWide();
  const auto application = readAttribute<ElementRef>(accessibility_, asked_, attribute::focusedApplication);
  if (!application) return std::nullopt;
  const auto element = readAttribute<ElementRef>(accessibility_, *application, attribute::focusedElement);
  if (!element) return std::nullopt;
  asked_ = *element;

  if (const auto rect = selectionBounds(*element, layout, charactersBefore)) return rect;
  if (const auto rect = elementPointerRect(*element, layout)) return rect;
  return windowPointerRect(*application, layout);
}

std::optional<Rect> CaretLocator::selectionBounds(const ElementRef& element, const ScreenLayout& layout,
                                                  std::int64_t charactersBefore) {
  auto range = readAttribute<TextRange>(accessibility_, element, attribute::selectedTextRange);
  if (!range) return std::nullopt;
  const bool isRead = charactersBefore > 0 && range->length == 0;
  if (isRead) range = TextRange::before(range->location, charactersBefore);
  const auto bounds = accessibility_.parameterizedAttribute(element, attribute::boundsForRange, *range);
  if (isRead) context_ = readContext(element, *range);
  const Rect* rect = bounds ? std::get_if<Rect>(&*bounds) : nullptr;
  if (!rect) return std::nullopt;

  const Rect onScreen = layout.toScreenCoordinates(*rect);
  return isCredible(onScreen, layout) ? std::optional(onScreen) : std::nullopt;
}

CaretContext CaretLocator::readContext(const ElementRef& element, const TextRange& range) {
  const auto before = accessibility_.parameterizedAttribute(element, attribute::stringForRange, range);
  const auto kind = accessibility_.parameterizedAttribute(element, attribute::isTerminal, range);
  const auto* text = before ? std::get_if<std::string>(&*before) : nullptr;
  const bool* isTerminal = kind ? std::get_if<bool>(&*kind) : nullptr;
  return {text ? std::optional(*text) : std::nullopt, isTerminal && *isTerminal};
}

std::optional<Rect> CaretLocator::elementPointerRect(const ElementRef& element, const ScreenLayout& layout) {
  return pointerRectWithin(element, {0, 0, 20, 20}, layout);
}

std::optional<Rect> CaretLocator::windowPointerRect(const ElementRef& application,
                                                    const ScreenLayout& layout) {
  const auto window = readAttribute<ElementRef>(accessibility_, application, attribute::focusedWindow);
  return window ? pointerRectWithin(*window, {20, 40, 20, 40}, layout) : std::nullopt;
}

std::optional<Rect> CaretLocator::pointerRectWithin(const ElementRef& element, const Insets& insets,
                                                    const ScreenLayout& layout) {
  const auto origin = readAttribute<Point>(accessibility_, element, attribute::position);
  const auto size = readAttribute<Size>(accessibility_, element, attribute::size);
  if (!origin || !size) return std::nullopt;

  const Point mouse = screens_.mouseLocation();
  const double mouseDown = layout.primaryHeight() - mouse.y;
  // The right and bottom insets come last: they win when the element is smaller than both.
  const double x =
      std::min(origin->x + size->width - insets.right, std::max(mouse.x, origin->x + insets.left));
  const double y =
      std::min(origin->y + size->height - insets.bottom, std::max(mouseDown, origin->y + insets.top));
  return layout.toScreenCoordinates({x, y, syntheticCaret.width, syntheticCaret.height});
}

}  // namespace tessarin
