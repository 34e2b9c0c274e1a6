#include "popup/ScreenLayout.h"

#include <algorithm>

#include "platform/CoordinateSpace.h"

namespace tessarin {

ScreenLayout ScreenLayout::read(Screens& screens) {
  return {screens.screens(), screens.mainScreen()};
}

std::optional<Screen> ScreenLayout::screenContaining(Point point) const {
  const auto found =
      std::ranges::find_if(screens, [point](const Screen& screen) { return screen.frame.contains(point); });
  return found != screens.end() ? std::optional(*found) : mainScreen;
}

Rect ScreenLayout::toScreenCoordinates(const Rect& rect) const {
  return screens.empty() ? rect : CoordinateSpace(1, primaryHeight()).flipped(rect);
}

double ScreenLayout::primaryHeight() const {
  return screens.empty() ? 0 : screens.front().frame.height;
}

}  // namespace tessarin
