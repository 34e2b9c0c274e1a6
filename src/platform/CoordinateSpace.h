#pragma once

#include "base/Geometry.h"

namespace tessarin {

/// The one place where pixels become points and where y is turned over.
class CoordinateSpace {
 public:
  /// `scale`: pixels a point (1, 1.5, 2, …). `primaryHeight`: height of the primary screen in points.
  CoordinateSpace(double scale, double primaryHeight) : scale_(scale), primaryHeight_(primaryHeight) {}

  double scale() const { return scale_; }
  Rect toPoints(const Rect& pixels) const;
  Rect toPixels(const Rect& points) const;
  /// Between accessibility coordinates (y downwards) and screen coordinates (y upwards); its own inverse.
  Rect flipped(const Rect& rect) const;
  Point flipped(Point point) const;

 private:
  double scale_;
  double primaryHeight_;
};

}  // namespace tessarin
