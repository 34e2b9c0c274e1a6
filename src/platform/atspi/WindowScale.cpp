#include "platform/atspi/WindowScale.h"

#include <cmath>

namespace tessarin::atspi {
namespace {

constexpr double step = 0.25;
constexpr double largestScale = 4;
/// A frame around the window counts for one of the two sizes only: lines at the sides, a title above.
constexpr double widthTolerance = 0.04;
constexpr double heightTolerance = 0.25;

bool isAbout(double ratio, double scale, double tolerance) {
  return std::abs(ratio - scale) <= tolerance * scale;
}

}  // namespace

std::optional<double> pixelsPerUnit(const Size& pixels, const Size& units) {
  if (pixels.width <= 0 || pixels.height <= 0 || units.width <= 0 || units.height <= 0) {
    return std::nullopt;
  }
  const double ratio = pixels.width / units.width;
  const double scale = std::round(ratio / step) * step;
  const bool isCredible = scale >= 1 && scale <= largestScale && isAbout(ratio, scale, widthTolerance) &&
                          isAbout(pixels.height / units.height, scale, heightTolerance);
  return isCredible ? std::optional(scale) : std::nullopt;
}

}  // namespace tessarin::atspi
