#pragma once

#include <optional>
#include <string>

namespace tessarin {

/// The program's own entry among what the desktop starts when the user logs in. Main thread; the calls take
/// effect before they return.
class LoginItem {
 public:
  virtual ~LoginItem() = default;

  /// From the next login on the program is started. None when that is so now; else why it could not be done,
  /// in one line fit for the user.
  [[nodiscard]] virtual std::optional<std::string> registerItem() = 0;
  /// The opposite; done already when there is no entry. Answers in the same way.
  [[nodiscard]] virtual std::optional<std::string> unregisterItem() = 0;
  /// Whether the next login will start the program. Asked afresh every time.
  virtual bool isEnabled() = 0;
};

}  // namespace tessarin
