#pragma once

#include "platform/Accessibility.h"

namespace tessarin::testing {

/// None where no application has the focus, or the one that has it tells of none.
inline ElementRef focusedElement(Accessibility& accessibility) {
  const auto application =
      readAttribute<ElementRef>(accessibility, accessibility.systemWide(), attribute::focusedApplication);
  if (!application) return nullptr;
  return readAttribute<ElementRef>(accessibility, *application, attribute::focusedElement).value_or(nullptr);
}

}  // namespace tessarin::testing
