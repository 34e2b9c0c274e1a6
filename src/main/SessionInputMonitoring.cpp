#include "main/SessionInputMonitoring.h"

#include "base/Translate.h"

namespace tessarin {
namespace {

std::string headline(KeyTapState state) {
  if (state == KeyTapState::usable) {
    return translate("InputMonitoringHelp", "Tessarin can judge keys on this session.");
  }
  return translate("InputMonitoringHelp", "Tessarin cannot judge keys on this session.");
}

std::string reason(KeyTapState state) {
  switch (state) {
    case KeyTapState::usable:
      return translate("InputMonitoringHelp", "Nothing is missing.");
    case KeyTapState::waylandSession:
      return translate(
          "InputMonitoringHelp",
          "This is a Wayland session, in which a program sees only the keys typed into its own windows. "
          "Choose "
          "an X11 session (often called “Xorg”) when you log in, and shortcodes expand everywhere.");
    case KeyTapState::noServer:
      return translate("InputMonitoringHelp",
                       "No X server answers. Start Tessarin from an X11 desktop session.");
    case KeyTapState::missingExtensions:
      return translate(
          "InputMonitoringHelp",
          "The X server lacks one of the extensions XInput 2.2, XTest and XKB. Every current X server has "
          "them; remote and nested ones may have to be updated or started with them switched on.");
  }
  return {};
}

}  // namespace

Explanation explain(KeyTapState state) {
  Explanation result{headline(state), reason(state)};
  if (state != KeyTapState::usable) {
    result.text +=
        "\n\n" + translate("InputMonitoringHelp",
                           "Until then no shortcode expands and no popup appears. The tray menu, the "
                           "settings, your snippets, import and export, and the command line work.");
  }
  return result;
}

}  // namespace tessarin
