#pragma once

#include <optional>
#include <string>

#include "platform/atspi/DBusHandles.h"

namespace tessarin::atspi {

/// The session's accessibility bus, a bus of its own beside the session bus, and the switch that makes
/// applications speak on it.
class AccessibilityBus {
 public:
  /// Where it listens; starts it when the session can. None when there is none. `session`: the session bus.
  static std::optional<std::string> address(DBusConnection* session);
  /// Switches the session's accessibility on. Toolkits that were started before may notice only when they are
  /// started again. False when there is no such switch. `sessionAddress`: empty for the environment's, and
  /// then it is switched on for later sessions as well where the desktop keeps such a setting.
  static bool enable(const std::string& sessionAddress = {});
};

}  // namespace tessarin::atspi
