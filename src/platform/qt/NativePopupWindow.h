#pragma once

#include "base/Geometry.h"

class QImage;
class QWidget;

namespace tessarin::ui {

/// Does to a window of ours what cannot be said in Qt's logical coordinates: exact places in native pixels
/// and corners cut out of the window's shape. Without an X server it does what Qt can do.
class NativePopupWindow {
 public:
  explicit NativePopupWindow(QWidget& window) : window_(window) {}

  /// Whether a compositor runs, so that what is transparent is seen so.
  bool isComposited() const;
  /// Names the window as one of Tessarin's, whatever the program's file is called.
  void setClass() const;
  /// Native pixels, y downwards.
  void setGeometry(const Rect& pixels) const;
  /// Cuts the corners off, or undoes it. `radius` in native pixels.
  void setRounded(bool isRounded, double radius) const;
  /// Puts the picture, in native pixels, into the shown window at once, instead of when Qt has heard from the
  /// server that it may.
  void draw(const QImage& picture) const;

 private:
  QWidget& window_;
};

}  // namespace tessarin::ui
