#pragma once

#include <QAccessible>
#include <QCoreApplication>
#include <utility>
#include <vector>

#include "ui/PopupList.h"

namespace tessarin::ui {

class PopupWindow;

/// A part of the popup that is no widget of its own. The registry owns what has been registered, so an owner
/// here holds the number alone.
class PopupPartAccessible : public QAccessibleInterface {
 public:
  explicit PopupPartAccessible(PopupWindow& window) : window_(window) {}

  bool isValid() const override { return true; }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
  void setText(QAccessible::Text /*which*/, const QString& /*text*/) override {}

 protected:
  PopupWindow& popup() const { return window_; }
  /// Part of the popup's picture, on the screen.
  QRect onScreen(const QRectF& part) const;

 private:
  PopupWindow& window_;
};

/// Registers a part as long as it lives.
template <class Part>
class RegisteredPart {
 public:
  template <class... Args>
  explicit RegisteredPart(Args&&... args)
      : part_(new Part(std::forward<Args>(args)...)), id_(QAccessible::registerAccessibleInterface(part_)) {}
  RegisteredPart(RegisteredPart&& other) noexcept
      : part_(std::exchange(other.part_, nullptr)), id_(std::exchange(other.id_, 0)) {}
  RegisteredPart& operator=(RegisteredPart&& other) noexcept {
    std::swap(part_, other.part_);
    std::swap(id_, other.id_);
    return *this;
  }
  ~RegisteredPart() {
    if (part_ != nullptr) QAccessible::deleteAccessibleInterface(id_);
  }

  Part* get() const { return part_; }
  Part* operator->() const { return part_; }

 private:
  Part* part_;
  QAccessible::Id id_;
};

}  // namespace tessarin::ui
