#include "platform/qt/OwnWindowsAccessibility.h"

#include <QApplication>
#include <memory>
#include <utility>

namespace tessarin::ui {
namespace {

struct SystemElement final : AccessibilityElement {};

struct OwnApplication final : AccessibilityElement {};

struct OwnWidget final : AccessibilityElement {
  explicit OwnWidget(QWidget* shown) : widget(shown), field(shown) {}
  QPointer<QWidget> widget;
  OwnTextField field;
};

template <class Element>
const Element* as(const ElementRef& element) {
  return dynamic_cast<const Element*>(element.get());
}

using Value = std::optional<AttributeValue>;

template <class T>
Value toValue(std::optional<T> found) {
  return found ? Value(std::move(*found)) : std::nullopt;
}

Value elementFor(QWidget* widget) {
  return widget != nullptr ? Value(ElementRef(std::make_shared<OwnWidget>(widget))) : std::nullopt;
}

Value ofApplication(std::string_view name) {
  if (name == attribute::focusedElement) return elementFor(QApplication::focusWidget());
  if (name == attribute::focusedWindow) return elementFor(QApplication::activeWindow());
  return std::nullopt;
}

Value ofFrame(const OwnTextField& field, std::string_view name) {
  const auto frame = field.frame();
  if (!frame) return std::nullopt;
  if (name == attribute::position) return Point{frame->x, frame->y};
  return Size{frame->width, frame->height};
}

Value ofWidget(const OwnWidget& element, std::string_view name) {
  if (!element.widget) return std::nullopt;
  const OwnTextField& field = element.field;
  if (name == attribute::role) return std::string(element.widget->isWindow() ? role::window : field.role());
  if (name == attribute::value) return field.isEditable() ? Value(std::string()) : std::nullopt;
  if (name == attribute::selectedTextRange) return toValue(field.selection());
  if (name == attribute::position || name == attribute::size) return ofFrame(field, name);
  if (name == attribute::parent) return elementFor(element.widget->parentWidget());
  return std::nullopt;
}

}  // namespace

OwnWindowsAccessibility::OwnWindowsAccessibility(Accessibility& others)
    : others_(others), systemWide_(std::make_shared<SystemElement>()) {
  QObject::connect(qApp, &QApplication::focusChanged, &context_, [this] { focusMoved_.emit(); });
}

Value OwnWindowsAccessibility::ofSystem(std::string_view name) {
  if (QApplication::activeWindow() == nullptr) return others_.attribute(others_.systemWide(), name);
  if (name != attribute::focusedApplication) return std::nullopt;
  return ElementRef(std::make_shared<OwnApplication>());
}

Value OwnWindowsAccessibility::attribute(const ElementRef& element, std::string_view name) {
  if (as<SystemElement>(element) != nullptr) return ofSystem(name);
  if (as<OwnApplication>(element) != nullptr) return ofApplication(name);
  if (const auto* own = as<OwnWidget>(element)) return ofWidget(*own, name);
  return others_.attribute(element, name);
}

Value OwnWindowsAccessibility::parameterizedAttribute(const ElementRef& element, std::string_view name,
                                                      const AttributeValue& parameter) {
  const auto* own = as<OwnWidget>(element);
  if (own == nullptr) return others_.parameterizedAttribute(element, name, parameter);
  const auto* range = std::get_if<TextRange>(&parameter);
  if (range == nullptr) return std::nullopt;
  if (name == attribute::stringForRange) return toValue(own->field.string(*range));
  if (name == attribute::boundsForRange) return toValue(own->field.caretRect());
  return std::nullopt;
}

AccessibilityStatus OwnWindowsAccessibility::setAttribute(const ElementRef& element, std::string_view name,
                                                          const AttributeValue& value) {
  const auto* own = as<OwnWidget>(element);
  if (own == nullptr) return others_.setAttribute(element, name, value);
  if (const auto* range = std::get_if<TextRange>(&value); range && name == attribute::selectedTextRange) {
    if (!own->field.string(*range)) return AccessibilityStatus::failure;
    selection_ = {element, *range};
    return AccessibilityStatus::success;
  }
  const auto* text = std::get_if<std::string>(&value);
  const auto selection = std::exchange(selection_, std::nullopt);
  const bool isWanted =
      text != nullptr && name == attribute::selectedText && selection && selection->element == element;
  return isWanted ? OwnTextField(own->field).replace(selection->range, *text) : AccessibilityStatus::failure;
}

Subscription OwnWindowsAccessibility::onFocusMoved(std::function<void()> callback) {
  auto own = std::make_shared<Subscription>(focusMoved_.subscribe(callback));
  auto others = std::make_shared<Subscription>(others_.onFocusMoved(std::move(callback)));
  return Subscription([own, others] {
    own->reset();
    others->reset();
  });
}

bool OwnWindowsAccessibility::isBusy(const ElementRef& element) {
  return others_.isBusy(element == systemWide_ ? others_.systemWide() : element);
}

bool OwnWindowsAccessibility::pause(std::chrono::milliseconds duration) {
  return QApplication::activeWindow() == nullptr && others_.pause(duration);
}

}  // namespace tessarin::ui
