#include "ui/PopupWindow.h"

#include <QEasingCurve>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>
#include <cmath>
#include <utility>

#include "platform/qt/NativePopupWindow.h"
#include "ui/PopupAccessible.h"

namespace tessarin::ui {
namespace {

constexpr int scrollMilliseconds = 100;
constexpr Qt::WindowFlags popupFlags = Qt::ToolTip | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                                       Qt::WindowDoesNotAcceptFocus | Qt::WindowStaysOnTopHint;

}  // namespace

PopupWindow::PopupWindow(QtScreens& screens)
    : QWidget(nullptr, popupFlags), screens_(screens), painter_(palette()) {
  PopupAccessible::install();
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_X11NetWmWindowTypePopupMenu);
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
  setAccessibleName(QStringLiteral("Tessarin"));
  resize(PopupLayout::sizeFor(1).toSize());
  scrolling_.setDuration(scrollMilliseconds);
  scrolling_.setEasingCurve(QEasingCurve::InOutQuad);
  connect(&scrolling_, &QVariantAnimation::valueChanged, this,
          [this](const QVariant& value) { setScroll(value.toDouble()); });
  winId();
  NativePopupWindow(*this).setClass();
  QTimer::singleShot(0, this, [this] { warmUp(); });
}

void PopupWindow::warmUp() {
  if (isVisible()) return;
  const PopupContent content{
      ":", "a", {{"", "😀", "a", "a", true}, {"", "👍🏽", "a", "a", true}}, 0, false, {}, 0, {{"↵", "a"}}};
  paint(content, PopupLayout(content, PopupLayout::sizeFor(2)), {});
  painter_.rest();
}

QImage PopupWindow::paint(const PopupContent& content, const PopupLayout& layout, const PopupView& view) {
  const double ratio = devicePixelRatioF();
  QImage image((layout.size() * ratio).toSize(), QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(view.isTranslucent ? Qt::transparent : painter_.ground());
  QPainter painter(&image);
  painter_.paint(painter, content, layout, view);
  return image;
}

void PopupWindow::prepare(const PopupContent& content) {
  const PopupLayout layout(content, PopupLayout::sizeFor(static_cast<int>(content.rows.size())));
  const PopupView view{layout.scrollCentring(content.selectedIndex), {}, isTranslucent_};
  picture_ = Picture{content, view, paint(content, layout, view)};
}

bool PopupWindow::isPainted() const {
  return picture_ && picture_->content == content_ && picture_->view == view() &&
         picture_->image.size() == (layout_.size() * devicePixelRatioF()).toSize();
}

void PopupWindow::show(const PopupContent& content, const Rect& frame) {
  const bool wasVisible = isVisible();
  setContent(content, QSizeF(frame.width, frame.height));
  if (!wasVisible || frame_ != frame) showAt(frame);
  update();
}

void PopupWindow::hide() {
  scrolling_.stop();
  setVisible(false);
  frame_.reset();
  hoveredRow_.reset();
  pressed_ = {};
  content_ = {};
  picture_.reset();
  painter_.rest();
  isUntold_ = false;
  tellAssistants();
}

void PopupWindow::setContent(const PopupContent& content, QSizeF size) {
  const bool isSameList = isVisible() && content.rows == content_.rows;
  const bool isSelectionMoved = content.selectedIndex != content_.selectedIndex;
  const bool isPickerToggled = content.skinToneMode != content_.skinToneMode;
  isUntold_ = isUntold_ || !isSameList || content != content_;
  content_ = content;
  layout_ = PopupLayout(content, size);
  const double target = layout_.scrollCentring(content.selectedIndex);
  if (!isSameList) {
    scrolling_.stop();
    hoveredRow_.reset();
    pressed_ = {};
    scroll_ = target;
  } else if (isPickerToggled) {
    scrolling_.stop();
    scroll_ = target;
  } else if (isSelectionMoved && target != scroll_) {
    scrolling_.stop();
    scrolling_.setStartValue(scroll_);
    scrolling_.setEndValue(target);
    scrolling_.start();
  }
}

void PopupWindow::showAt(const Rect& frame) {
  frame_ = frame;
  const CoordinateSpace space = screens_.space();
  const Rect pixels = space.toPixels(space.flipped(frame));
  const NativePopupWindow native(*this);
  isTranslucent_ = screens_.isComposited();
  native.setGeometry(pixels);
  native.setRounded(!isTranslucent_, PopupLayout::cornerRadius * space.scale());
  if (isVisible()) return;
  // Qt waits for the server when it shows a window. By then it stands there.
  if (isPainted()) native.show(picture_->image);
  setVisible(true);
  native.setGeometry(pixels);  // showing has put Qt's rounded place back
}

void PopupWindow::setScroll(double scroll) {
  const double clamped = layout_.clampedScroll(scroll);
  if (std::exchange(scroll_, clamped) != clamped) update();
}

void PopupWindow::setHoveredRow(std::optional<int> row) {
  if (std::exchange(hoveredRow_, row) != row) update();
}

PopupWindow::Target PopupWindow::targetAt(QPointF point) const {
  return {layout_.rowAt(point, scroll_), layout_.variantAt(point)};
}

void PopupWindow::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.drawImage(0, 0, isPainted() ? picture_->image : paint(content_, layout_, view()));
  if (std::exchange(isUntold_, false)) tellAssistants();
}

void PopupWindow::tellAssistants() {
  if (!QAccessible::isActive()) return;
  QTimer::singleShot(0, this, [this] {
    if (auto* accessible = PopupAccessible::of(*this)) accessible->tellChanges();
  });
}

void PopupWindow::mouseMoveEvent(QMouseEvent* event) {
  setHoveredRow(layout_.rowAt(event->position(), scroll_));
}

void PopupWindow::leaveEvent(QEvent*) {
  setHoveredRow(std::nullopt);
}

void PopupWindow::mousePressEvent(QMouseEvent* event) {
  pressed_ = event->button() == Qt::LeftButton ? targetAt(event->position()) : Target{};
}

void PopupWindow::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const Target released = targetAt(event->position());
  if (std::exchange(pressed_, {}) != released) return;
  if (released.row) choose(PopupList::rows, *released.row);
  if (released.variant) choose(PopupList::variants, *released.variant);
}

void PopupWindow::choose(PopupList list, int index) {
  // A copy: a click may hide the popup and set other callbacks.
  const auto clicked = list == PopupList::rows ? rowClicked_ : variantClicked_;
  if (clicked) clicked(index);
}

void PopupWindow::wheelEvent(QWheelEvent* event) {
  constexpr double pointsPerDegree = PopupLayout::rowHeight / 15;  // a notch of 15 degrees moves one row
  scrolling_.stop();
  const double pixels = event->pixelDelta().y();
  setScroll(scroll_ - (pixels != 0 ? pixels : event->angleDelta().y() / 8.0 * pointsPerDegree));
  setHoveredRow(layout_.rowAt(event->position(), scroll_));
  event->accept();
}

void PopupWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    picture_.reset();
    painter_.setPalette(palette());
  }
}

}  // namespace tessarin::ui
