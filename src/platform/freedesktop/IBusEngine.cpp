#include "platform/freedesktop/IBusEngine.h"

#include <string>
#include <string_view>
#include <utility>

namespace tessarin::freedesktop {
namespace {

constexpr const char* ibusService = "org.freedesktop.IBus";
constexpr const char* ibusPath = "/org/freedesktop/IBus";

/// An engine's description is a structure: its type's name, attachments, and then the engine's name.
const char* engineName(DBusMessage* description) {
  DBusMessageIter value;
  if (dbus_message_iter_init(description, &value) == 0) return nullptr;
  while (dbus_message_iter_get_arg_type(&value) == DBUS_TYPE_VARIANT) {
    DBusMessageIter inner;
    dbus_message_iter_recurse(&value, &inner);
    value = inner;
  }
  if (dbus_message_iter_get_arg_type(&value) != DBUS_TYPE_STRUCT) return nullptr;
  DBusMessageIter field;
  dbus_message_iter_recurse(&value, &field);
  if (dbus_message_iter_next(&field) == 0 || dbus_message_iter_next(&field) == 0) return nullptr;
  if (dbus_message_iter_get_arg_type(&field) != DBUS_TYPE_STRING) return nullptr;
  const char* name = nullptr;
  dbus_message_iter_get_basic(&field, static_cast<void*>(&name));
  return name;
}

}  // namespace

IBusEngine::IBusEngine(Bus bus) : BusListener(std::move(bus)) {
  listenFor("type='signal',interface='" + std::string(ibusService) + "',member='GlobalEngineChanged'");
  Message question(dbus_message_new_method_call(ibusService, ibusPath, DBUS_INTERFACE_PROPERTIES, "Get"));
  const char* of = ibusService;
  const char* property = "GlobalEngine";
  dbus_message_append_args(question.get(), DBUS_TYPE_STRING, &of, DBUS_TYPE_STRING, &property,
                           DBUS_TYPE_INVALID);
  question_ = ask(std::move(question));
}

void IBusEngine::setName(const char* name) {
  isComposing_ = name != nullptr && *name != '\0' && !std::string_view(name).starts_with("xkb:");
}

void IBusEngine::handleSignal(DBusMessage* signal) {
  const char* name = nullptr;
  if (dbus_message_is_signal(signal, ibusService, "GlobalEngineChanged") == 0) return;
  if (dbus_message_get_args(signal, nullptr, DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID) == 0) return;
  question_ = 0;
  setName(name);
}

void IBusEngine::handleAnswer(dbus_uint32_t question, DBusMessage* answer) {
  if (question != question_ || dbus_message_get_type(answer) == DBUS_MESSAGE_TYPE_ERROR) return;
  setName(engineName(answer));
}

}  // namespace tessarin::freedesktop
