#pragma once

namespace tessarin {

class Accessibility;

/// Whether the focused element is a password field, in which nothing may be collected.
class SecureInput {
 public:
  explicit SecureInput(Accessibility& accessibility) : accessibility_(accessibility) {}

  /// Reads the focused element's role from the application, so it costs a few accessibility calls. An element
  /// that does not answer is taken for an ordinary one.
  bool isActive();

 private:
  Accessibility& accessibility_;
};

}  // namespace tessarin
