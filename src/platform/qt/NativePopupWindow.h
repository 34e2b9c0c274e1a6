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

  /// Names the window as one of Tessarin's, whatever the program's file is called.
  void setClass() const;
  /// Native pixels, y downwards.
  void setGeometry(const Rect& pixels) const;
  /// Cuts the corners off, or undoes it. `radius` in native pixels.
  void setRounded(bool isRounded, double radius) const;
  /// Has the server show the window with this picture, in native pixels, at once. For Qt it is still hidden.
  void show(const QImage& picture) const;

 private:
  QWidget& window_;
};

}  // namespace tessarin::ui
