#pragma once

#include <functional>

#include "base/Geometry.h"
#include "platform/PopupPresenter.h"

namespace tessarin {

/// The window that carries the popup's picture where programs place their own windows.
class PopupSurface {
 public:
  virtual ~PopupSurface() = default;

  /// Called before the caret is looked for: while the application is still busy with the key, the picture can
  /// be painted.
  virtual void prepare(const PopupContent& content) = 0;
  /// `frame` in screen coordinates, points.
  virtual void show(const PopupContent& content, const Rect& frame) = 0;
  virtual void hide() = 0;
  virtual void onRowClicked(std::function<void(int index)> callback) = 0;
  virtual void onVariantClicked(std::function<void(int index)> callback) = 0;
};

}  // namespace tessarin
