#include "platform/atspi/Roles.h"

#include "platform/Accessibility.h"

namespace tessarin::atspi {

bool isPlainText(std::uint32_t role) {
  return role == busRole::text || role == busRole::entry || role == busRole::paragraph ||
         role == busRole::documentText;
}

bool isWindow(std::uint32_t role) {
  return role == busRole::frame || role == busRole::window || role == busRole::dialog;
}

std::string_view roleName(std::uint32_t role, std::uint64_t states, std::string_view htmlTag) {
  if (role == busRole::passwordText) return role::secureTextField;
  if (role == busRole::terminal) return role::terminal;
  if (role == busRole::documentWeb) return role::webArea;
  if (isWindow(role)) return role::window;
  if (!isPlainText(role)) return role::unknown;
  if (htmlTag == "textarea") return role::htmlTextArea;
  if (htmlTag == "input") return role::htmlTextInput;
  return (states & busState::multiLine) != 0 ? role::textArea : role::textField;
}

}  // namespace tessarin::atspi
