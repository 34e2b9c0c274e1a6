#include "input/SecureInput.h"

#include "platform/Accessibility.h"

namespace tessarin {

bool SecureInput::isActive() {
  const auto application =
      readAttribute<ElementRef>(accessibility_, accessibility_.systemWide(), attribute::focusedApplication);
  if (!application) return false;
  const auto element = readAttribute<ElementRef>(accessibility_, *application, attribute::focusedElement);
  if (!element) return false;
  return readAttribute<std::string>(accessibility_, *element, attribute::role) == role::secureTextField;
}

}  // namespace tessarin
