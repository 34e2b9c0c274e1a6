#include "platform/CoordinateSpace.h"

namespace tessarin {

Rect CoordinateSpace::toPoints(const Rect& pixels) const {
  return {pixels.x / scale_, pixels.y / scale_, pixels.width / scale_, pixels.height / scale_};
}

Rect CoordinateSpace::toPixels(const Rect& points) const {
  return {points.x * scale_, points.y * scale_, points.width * scale_, points.height * scale_};
}

Rect CoordinateSpace::flipped(const Rect& rect) const {
  return {rect.x, primaryHeight_ - rect.y - rect.height, rect.width, rect.height};
}

Point CoordinateSpace::flipped(Point point) const {
  return {point.x, primaryHeight_ - point.y};
}

}  // namespace tessarin
