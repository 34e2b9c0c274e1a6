#pragma once

namespace tessarin {

/// Lengths are points unless a name says pixels. Which way y grows is said where a value is used:
/// "accessibility coordinates" have their origin at the top left of the primary screen and y growing
/// downwards, "screen coordinates" have it at the bottom left and y growing upwards.
struct Point {
  double x = 0;
  double y = 0;
  bool operator==(const Point&) const = default;
};

struct Size {
  double width = 0;
  double height = 0;
  bool operator==(const Size&) const = default;
};

struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  bool operator==(const Rect&) const = default;

  double minX() const { return x; }
  double minY() const { return y; }
  double maxX() const { return x + width; }
  double maxY() const { return y + height; }
  /// The left and lower-coordinate edges belong to the rectangle, the other two do not.
  bool contains(Point p) const { return p.x >= minX() && p.x < maxX() && p.y >= minY() && p.y < maxY(); }
};

}  // namespace tessarin
