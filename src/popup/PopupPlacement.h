#pragma once

#include <optional>

#include "base/Geometry.h"
#include "popup/ScreenLayout.h"

namespace tessarin {

/// The popup's width in points.
inline constexpr double popupWidth = 320;

/// The popup's height in points: header, footer and one line a row, at most eight of them; a longer list, and
/// one that shares the room with the skin-tone picker, scrolls.
double popupHeight(int rowCount);

/// Where a popup of that many rows goes, in screen coordinates: below the caret, above it when there is no
/// room, and inside the screen that the caret is on. Without a caret, or with an all-zero one, beside the
/// mouse pointer.
Rect popupFrame(int rowCount, const std::optional<Rect>& caret, const ScreenLayout& screens, Point mouse);

}  // namespace tessarin
