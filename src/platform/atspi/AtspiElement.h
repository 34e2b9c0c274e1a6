#pragma once

#include <utility>

#include "platform/Accessibility.h"
#include "platform/atspi/ObjectReference.h"

namespace tessarin::atspi {

/// An object on the accessibility bus. The system-wide element is one without a place.
class AtspiElement final : public AccessibilityElement {
 public:
  AtspiElement() = default;
  explicit AtspiElement(ObjectReference object) : object_(std::move(object)) {}

  bool isSystemWide() const { return object_.bus.empty(); }
  bool isApplication() const { return object_.path == applicationPath; }
  const ObjectReference& object() const { return object_; }

 private:
  ObjectReference object_;
};

}  // namespace tessarin::atspi
