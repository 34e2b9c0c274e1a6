#include "platform/qt/NativePopupWindow.h"

#include <xcb/shape.h>

#include <QGuiApplication>
#include <QImage>
#include <QScreen>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include "platform/qt/QtConnection.h"

namespace tessarin::ui {
namespace {

/// The shape of a rounded rectangle, a line of pixels at a time where it curves.
std::vector<xcb_rectangle_t> roundedShape(int width, int height, double radius) {
  std::vector<xcb_rectangle_t> shape;
  const int curved = std::min(static_cast<int>(std::ceil(radius)), height / 2);
  const auto line = [&](int y, int count, int inset) {
    shape.push_back({static_cast<std::int16_t>(inset), static_cast<std::int16_t>(y),
                     static_cast<std::uint16_t>(width - 2 * inset), static_cast<std::uint16_t>(count)});
  };
  const auto insetAt = [&](int y) {
    const double rise = radius - (y + 0.5);
    return static_cast<int>(std::lround(radius - std::sqrt(std::max(0.0, radius * radius - rise * rise))));
  };
  for (int y = 0; y < curved; ++y) line(y, 1, insetAt(y));
  line(curved, height - 2 * curved, 0);
  for (int y = curved - 1; y >= 0; --y) line(height - 1 - y, 1, insetAt(y));
  return shape;
}

/// Qt keeps each screen's origin in native pixels and scales from there.
QRect logicalGeometry(const QRect& pixels) {
  const double ratio = qGuiApp->devicePixelRatio();
  QPointF origin;
  for (const QScreen* screen : QGuiApplication::screens()) {
    const QRect logical = screen->geometry();
    const QRectF native(logical.topLeft(), QSizeF(logical.size()) * ratio);
    if (native.contains(pixels.topLeft())) origin = native.topLeft();
  }
  const QPointF topLeft = origin + (pixels.topLeft() - origin) / ratio;
  return {topLeft.toPoint(), (QSizeF(pixels.size()) / ratio).toSize()};
}

}  // namespace

void NativePopupWindow::setClass() const {
  const auto x = qtConnection();
  if (!x) return;
  constexpr char instanceAndClass[] = "tessarin\0Tessarin";
  xcb_change_property(x->connection, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window_.winId()),
                      XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8, sizeof(instanceAndClass), instanceAndClass);
}

void NativePopupWindow::setGeometry(const Rect& pixels) const {
  const QRect exact(static_cast<int>(std::lround(pixels.x)), static_cast<int>(std::lround(pixels.y)),
                    static_cast<int>(std::lround(pixels.width)),
                    static_cast<int>(std::lround(pixels.height)));
  window_.setGeometry(logicalGeometry(exact));
  const auto x = qtConnection();
  if (!x) return;
  const std::uint32_t values[] = {static_cast<std::uint32_t>(exact.x()),
                                  static_cast<std::uint32_t>(exact.y()),
                                  static_cast<std::uint32_t>(exact.width()),
                                  static_cast<std::uint32_t>(exact.height()), XCB_STACK_MODE_ABOVE};
  xcb_configure_window(x->connection, static_cast<xcb_window_t>(window_.winId()),
                       XCB_CONFIG_WINDOW_X | XCB_CONFIG_WINDOW_Y | XCB_CONFIG_WINDOW_WIDTH |
                           XCB_CONFIG_WINDOW_HEIGHT | XCB_CONFIG_WINDOW_STACK_MODE,
                       values);
}

void NativePopupWindow::setRounded(bool isRounded, double radius) const {
  const auto x = qtConnection();
  if (!x) return;
  const auto window = static_cast<xcb_window_t>(window_.winId());
  if (!isRounded) {
    xcb_shape_mask(x->connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, window, 0, 0, XCB_NONE);
    return;
  }
  const double ratio = window_.devicePixelRatioF();
  const auto shape = roundedShape(static_cast<int>(std::lround(window_.width() * ratio)),
                                  static_cast<int>(std::lround(window_.height() * ratio)), radius);
  xcb_shape_rectangles(x->connection, XCB_SHAPE_SO_SET, XCB_SHAPE_SK_BOUNDING, XCB_CLIP_ORDERING_YX_BANDED,
                       window, 0, 0, static_cast<std::uint32_t>(shape.size()), shape.data());
}

void NativePopupWindow::show(const QImage& picture) const {
  const auto x = qtConnection();
  if (!x || xcb_get_setup(x->connection)->image_byte_order != XCB_IMAGE_ORDER_LSB_FIRST) return;
  const auto window = static_cast<xcb_window_t>(window_.winId());
  const bool hasAlpha = window_.windowHandle()->format().alphaBufferSize() > 0;
  const auto bytesPerLine = static_cast<std::uint32_t>(picture.bytesPerLine());
  constexpr std::uint32_t requestBytes = 32;
  const std::uint32_t mostBytes = 4 * xcb_get_maximum_request_length(x->connection) - requestBytes;
  const int mostLines = static_cast<int>(mostBytes / bytesPerLine);
  xcb_map_window(x->connection, window);
  const xcb_gcontext_t context = xcb_generate_id(x->connection);
  xcb_create_gc(x->connection, context, window, 0, nullptr);
  for (int y = 0; y < picture.height(); y += mostLines) {
    const int lines = std::min(mostLines, picture.height() - y);
    xcb_put_image(x->connection, XCB_IMAGE_FORMAT_Z_PIXMAP, window, context,
                  static_cast<std::uint16_t>(picture.width()), static_cast<std::uint16_t>(lines), 0,
                  static_cast<std::int16_t>(y), 0, hasAlpha ? 32 : 24,
                  static_cast<std::uint32_t>(lines) * bytesPerLine, picture.constScanLine(y));
  }
  xcb_free_gc(x->connection, context);
  xcb_flush(x->connection);
}

}  // namespace tessarin::ui
