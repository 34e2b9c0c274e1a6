#include "platform/atspi/AccessibilityBus.h"

#include "base/ShellScript.h"
#include "platform/atspi/BusCalls.h"
#include "platform/atspi/Messages.h"

namespace tessarin::atspi {
namespace {

constexpr std::chrono::milliseconds longestBusCall{1000};

ObjectReference launcher() {
  return {"org.a11y.Bus", "/org/a11y/bus"};
}

/// The setting outlives the session, in which alone the switch on the bus counts. Whether a desktop has such
/// a setting only its own tool knows; nobody waits for it.
void keepEnabled() {
  runShellScript(
      "gsettings set org.gnome.desktop.interface toolkit-accessibility true </dev/null >/dev/null 2>&1 &");
}

}  // namespace

std::optional<std::string> AccessibilityBus::address(DBusConnection* session) {
  const MessagePtr request = methodCall(launcher(), "org.a11y.Bus", "GetAddress");
  const MessagePtr reply = callAndWait(session, request.get(), longestBusCall);
  auto address = MessageReader(reply.get()).string();
  return address && !address->empty() ? address : std::nullopt;
}

bool AccessibilityBus::enable(const std::string& sessionAddress) {
  if (sessionAddress.empty()) keepEnabled();
  const ConnectionPtr session = connectToSessionBus(sessionAddress);
  if (!session) return false;
  const MessagePtr request = methodCall(launcher(), DBUS_INTERFACE_PROPERTIES, "Set");
  const char* interface = "org.a11y.Status";
  const char* property = "IsEnabled";
  const dbus_bool_t on = TRUE;
  dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                           DBUS_TYPE_INVALID);
  DBusMessageIter arguments;
  DBusMessageIter variant;
  dbus_message_iter_init_append(request.get(), &arguments);
  dbus_message_iter_open_container(&arguments, DBUS_TYPE_VARIANT, "b", &variant);
  dbus_message_iter_append_basic(&variant, DBUS_TYPE_BOOLEAN, &on);
  dbus_message_iter_close_container(&arguments, &variant);
  return callAndWait(session.get(), request.get(), longestBusCall) != nullptr;
}

}  // namespace tessarin::atspi
