#pragma once

#include <optional>

#include "base/Geometry.h"

namespace tessarin::atspi {

/// How many pixels an application's unit is, from the size of its window in both. On a display with a high
/// resolution toolkits say where things are in units of their own scale, each in its own way; none where the
/// two sizes do not tell. Scales are multiples of a quarter.
std::optional<double> pixelsPerUnit(const Size& pixels, const Size& units);

}  // namespace tessarin::atspi
