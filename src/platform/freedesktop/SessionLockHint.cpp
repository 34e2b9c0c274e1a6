#include "platform/freedesktop/SessionLockHint.h"

#include <string>
#include <utility>

namespace tessarin::freedesktop {
namespace {

constexpr const char* logindService = "org.freedesktop.login1";
/// Stands for the caller's session, or for the user's graphical one where the caller belongs to none, as
/// programs do that the user's service manager started.
constexpr const char* session = "/org/freedesktop/login1/session/auto";
constexpr const char* interface = "org.freedesktop.login1.Session";

}  // namespace

SessionLockHint::SessionLockHint(Bus bus) : LockSource(std::move(bus)) {
  const std::string sessions = "type='signal',sender='" + std::string(logindService) +
                               "',path_namespace='/org/freedesktop/login1/session',";
  listenFor(sessions + "member='PropertiesChanged',arg0='" + interface + "'");
  for (const char* member : {"Lock", "Unlock"}) {
    listenFor(sessions + "interface='" + interface + "',member='" + member + "'");
  }
  listenFor("type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" +
            std::string(logindService) + "'");
  askForState();
}

void SessionLockHint::askForState() {
  Message question(dbus_message_new_method_call(logindService, session, DBUS_INTERFACE_PROPERTIES, "Get"));
  const char* of = interface;
  const char* property = "LockedHint";
  dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &of, DBUS_TYPE_STRING, &property,
                           DBUS_TYPE_INVALID);
  question_ = ask(std::move(question));
}

// Signals come under the session's real name and may be another session's, so each only makes us look.
void SessionLockHint::handleSignal(DBusMessage*) {
  askForState();
}

void SessionLockHint::handleAnswer(dbus_uint32_t question, DBusMessage* answer) {
  if (question != question_) return;
  isLocked_ = false;
  DBusMessageIter arguments;
  if (dbus_message_get_type(answer) == DBUS_MESSAGE_TYPE_ERROR) return;
  if (dbus_message_iter_init(answer, &arguments) == 0) return;
  if (dbus_message_iter_get_arg_type(&arguments) != DBUS_TYPE_VARIANT) return;
  DBusMessageIter value;
  dbus_message_iter_recurse(&arguments, &value);
  if (dbus_message_iter_get_arg_type(&value) != DBUS_TYPE_BOOLEAN) return;
  dbus_bool_t isLocked = 0;
  dbus_message_iter_get_basic(&value, &isLocked);
  isLocked_ = isLocked != 0;
}

}  // namespace tessarin::freedesktop
