#pragma once

#include <QImage>
#include <QVariantAnimation>
#include <QWidget>
#include <cstdint>
#include <functional>
#include <optional>

#include "platform/PopupSurface.h"
#include "platform/qt/QtScreens.h"
#include "ui/PopupList.h"
#include "ui/PopupPainter.h"

namespace tessarin::ui {

/// The popup on screen: a window that the window manager leaves alone and that never takes the focus. The
/// native window is made at once and stays hidden, so that showing it costs little. Main thread.
class PopupWindow final : public QWidget, public PopupSurface {
 public:
  /// The screens outlive the window.
  explicit PopupWindow(QtScreens& screens);

  void prepare(const PopupContent& content) override;
  void show(const PopupContent& content, const Rect& frame) override;
  void hide() override;
  void onRowClicked(std::function<void(int index)> callback) override { rowClicked_ = std::move(callback); }
  void onVariantClicked(std::function<void(int index)> callback) override {
    variantClicked_ = std::move(callback);
  }

  /// The X window, to be told from other programs' windows.
  std::uint32_t nativeWindow() const { return static_cast<std::uint32_t>(winId()); }
  double scroll() const { return scroll_; }
  const PopupContent& content() const { return content_; }
  const PopupLayout& contentLayout() const { return layout_; }
  /// As if the row or the variant had been clicked.
  void choose(PopupList list, int index);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// What a click can meet.
  struct Target {
    std::optional<int> row;
    std::optional<int> variant;
    bool operator==(const Target&) const = default;
  };
  /// Painted ahead, of use as long as that is what the window shows.
  struct Picture {
    PopupContent content;
    PopupView view;
    QImage image;
  };
  PopupView view() const { return {scroll_, hoveredRow_, isTranslucent_}; }
  QImage paint(const PopupContent& content, const PopupLayout& layout, const PopupView& view);
  bool isPainted() const;
  Target targetAt(QPointF point) const;
  /// Opens the fonts once, so that the first popup is as quick as the others.
  void warmUp();
  void setContent(const PopupContent& content, QSizeF size);
  void showAt(const Rect& frame);
  void setScroll(double scroll);
  void setHoveredRow(std::optional<int> row);
  /// Soon, so that neither the picture nor a key waits for it.
  void tellAssistants();

  QtScreens& screens_;
  PopupPainter painter_;
  std::optional<Picture> picture_;
  PopupContent content_;
  PopupLayout layout_;
  std::optional<Rect> frame_;  ///< as shown, screen coordinates
  double scroll_ = 0;
  std::optional<int> hoveredRow_;
  bool isTranslucent_ = false;
  Target pressed_;
  bool isUntold_ = false;  ///< assistive technologies do not know the content yet
  QVariantAnimation scrolling_;
  std::function<void(int)> rowClicked_;
  std::function<void(int)> variantClicked_;
};

}  // namespace tessarin::ui
