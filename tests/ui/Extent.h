#pragma once

#include <QImage>
#include <algorithm>
#include <functional>

namespace tessarin::testing {

/// The columns of a picture between which something is to be seen.
struct Extent {
  int first = -1;
  int last = -1;

  static Extent of(const QImage& picture, const std::function<bool(const QColor&)>& isPartOfIt) {
    Extent found{picture.width(), -1};
    for (int x = 0; x < picture.width(); ++x) {
      for (int y = 0; y < picture.height(); ++y) {
        if (isPartOfIt(picture.pixelColor(x, y))) found = {std::min(found.first, x), x};
      }
    }
    return found;
  }
};

}  // namespace tessarin::testing
