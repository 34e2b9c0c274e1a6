#include "input/Permissions.h"

#include "platform/Accessibility.h"
#include "platform/InputMonitoring.h"
#include "platform/Workspace.h"

namespace tessarin {

bool Permissions::isInputMonitoringGranted() const {
  return inputMonitoring_.isGranted();
}
bool Permissions::isAccessibilityGranted() const {
  return accessibility_.isTrusted();
}
void Permissions::requestListenAccess() {
  inputMonitoring_.request();
}
void Permissions::promptForAccessibility(PromptManner manner) {
  accessibility_.prompt(manner);
}
void Permissions::openInputMonitoringSettings() {
  workspace_.openUrl(inputMonitoringSettingsUrl);
}
void Permissions::openAccessibilitySettings() {
  workspace_.openUrl(accessibilitySettingsUrl);
}

}  // namespace tessarin
