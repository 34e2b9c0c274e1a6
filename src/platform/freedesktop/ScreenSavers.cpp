#include "platform/freedesktop/ScreenSavers.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessarin::freedesktop {
namespace {

struct Service {
  const char* name;  // of the service and of its interface
  const char* path;
};

/// All desktops took over the same two calls under names of their own.
constexpr std::array services = {
    Service{"org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"},
    Service{"org.gnome.ScreenSaver", "/org/gnome/ScreenSaver"},
    Service{"org.cinnamon.ScreenSaver", "/org/cinnamon/ScreenSaver"},
    Service{"org.mate.ScreenSaver", "/org/mate/ScreenSaver"},
    Service{"org.xfce.ScreenSaver", "/org/xfce/ScreenSaver"},
};

const Service* serviceNamed(const std::string& name) {
  const auto found = std::ranges::find(services, name, [](const Service& s) { return std::string(s.name); });
  return found == services.end() ? nullptr : &*found;
}

}  // namespace

ScreenSavers::ScreenSavers(Bus bus) : LockSource(std::move(bus)) {
  for (const auto& service : services) {
    const std::string name = service.name;
    listenFor("type='signal',member='ActiveChanged',interface='" + name + "'");
    listenFor("type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" + name + "'");
    askForState(name);
  }
}

bool ScreenSavers::isLocked() const {
  return std::ranges::any_of(active_, [](const auto& entry) { return entry.second; });
}

void ScreenSavers::askForState(const std::string& service) {
  const Service* known = serviceNamed(service);
  // One that is not running covers no screen.
  questions_[ask(Message(dbus_message_new_method_call(known->name, known->path, known->name, "GetActive")))] =
      service;
}

void ScreenSavers::handleSignal(DBusMessage* signal) {
  if (dbus_message_has_member(signal, "NameOwnerChanged") != 0) {
    const char* name = nullptr;
    if (dbus_message_get_args(signal, nullptr, DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID) == 0) return;
    if (serviceNamed(name) == nullptr) return;
    // One that has ended covers the screen no longer, whatever it said last.
    active_[name] = false;
    askForState(name);
    return;
  }
  dbus_bool_t isActive = 0;
  const char* interface = dbus_message_get_interface(signal);
  if (interface == nullptr || serviceNamed(interface) == nullptr) return;
  if (dbus_message_get_args(signal, nullptr, DBUS_TYPE_BOOLEAN, &isActive, DBUS_TYPE_INVALID) == 0) return;
  active_[interface] = isActive != 0;
}

void ScreenSavers::handleAnswer(dbus_uint32_t question, DBusMessage* answer) {
  const auto service = questions_.extract(question);
  dbus_bool_t isActive = 0;
  if (service.empty() || dbus_message_get_type(answer) == DBUS_MESSAGE_TYPE_ERROR) return;
  if (dbus_message_get_args(answer, nullptr, DBUS_TYPE_BOOLEAN, &isActive, DBUS_TYPE_INVALID) == 0) return;
  active_[service.mapped()] = isActive != 0;
}

}  // namespace tessarin::freedesktop
