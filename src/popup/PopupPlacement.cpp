#include "popup/PopupPlacement.h"

#include <algorithm>

namespace tessarin {
namespace {

constexpr double headerAndFooterHeight = 64;
constexpr double rowHeight = 36;
constexpr int mostRowsShown = 8;
constexpr double gapToCaret = 4;
constexpr double gapToPointer = 8;
constexpr double riseAbovePointer = 20;

Rect frameAtCaret(double height, const Rect& caret, const ScreenLayout& screens) {
  Rect frame{caret.x, caret.y - height - gapToCaret, popupWidth, height};
  if (const auto screen = screens.screenContaining({caret.x, caret.y})) {
    const Rect& visible = screen->visibleFrame;
    // The left edge comes last: on a screen narrower than the popup its beginning stays readable.
    frame.x = std::min(frame.x, visible.maxX() - popupWidth);
    frame.x = std::max(frame.x, visible.minX());
    if (frame.y < visible.minY()) frame.y = caret.maxY() + gapToCaret;
  }
  return frame;
}

Rect frameAtPointer(double height, Point mouse, const ScreenLayout& screens) {
  Rect frame{mouse.x + gapToPointer, mouse.y - height - gapToPointer, popupWidth, height};
  if (const auto screen = screens.screenContaining(mouse)) {
    const Rect& visible = screen->visibleFrame;
    if (visible.maxX() < frame.maxX()) frame.x = mouse.x - popupWidth - gapToPointer;
    if (frame.y < visible.minY()) frame.y = mouse.y + riseAbovePointer;
  }
  return frame;
}

}  // namespace

double popupHeight(int rowCount) {
  return headerAndFooterHeight + rowHeight * std::min(rowCount, mostRowsShown);
}

Rect popupFrame(int rowCount, const std::optional<Rect>& caret, const ScreenLayout& screens, Point mouse) {
  const double height = popupHeight(rowCount);
  if (caret && *caret != Rect{}) return frameAtCaret(height, *caret, screens);
  return frameAtPointer(height, mouse, screens);
}

}  // namespace tessarin
