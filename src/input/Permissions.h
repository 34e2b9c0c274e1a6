#pragma once

#include "platform/PromptManner.h"

namespace tessarin {

class Accessibility;
class InputMonitoring;
class Workspace;

/// The one place that checks and requests the two grants. Caches nothing: every call asks the platform, so a
/// grant given or taken back is seen at the next call. Main thread.
class Permissions {
 public:
  /// Where the desktop's layer shows and changes a grant; answered by the workspace's `openUrl`.
  static constexpr const char* inputMonitoringSettingsUrl = "tessarin:settings/input-monitoring";
  static constexpr const char* accessibilitySettingsUrl = "tessarin:settings/accessibility";

  Permissions(Accessibility& accessibility, InputMonitoring& inputMonitoring, Workspace& workspace)
      : accessibility_(accessibility), inputMonitoring_(inputMonitoring), workspace_(workspace) {}

  /// Whether the session has a key tap that can be used.
  bool isInputMonitoringGranted() const;
  /// Whether the user trusts the program to judge keys and write into other applications.
  bool isAccessibilityGranted() const;
  /// May show the platform's own explanation. The answer is seen by asking again later.
  void requestListenAccess();
  /// Asks the user for trust; shows nothing when it is given already.
  void promptForAccessibility(PromptManner manner = PromptManner::inFront);
  void openInputMonitoringSettings();
  void openAccessibilitySettings();

 private:
  Accessibility& accessibility_;
  InputMonitoring& inputMonitoring_;
  Workspace& workspace_;
};

}  // namespace tessarin
