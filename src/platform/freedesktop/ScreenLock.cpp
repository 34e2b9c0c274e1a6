#include "platform/freedesktop/ScreenLock.h"

#include <dbus/dbus.h>
#include <poll.h>
#include <sys/eventfd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace tessarin::freedesktop {
namespace {

struct Unref {
  void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using Message = std::unique_ptr<DBusMessage, Unref>;

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

DBusConnection* openBus(const std::string& address) {
  if (address.empty()) return dbus_bus_get_private(DBUS_BUS_SESSION, nullptr);
  DBusConnection* connection = dbus_connection_open_private(address.c_str(), nullptr);
  if (connection != nullptr && dbus_bus_register(connection, nullptr) == 0) {
    dbus_connection_close(connection);
    dbus_connection_unref(connection);
    return nullptr;
  }
  return connection;
}

}  // namespace

void ScreenLock::Close::operator()(DBusConnection* connection) const {
  dbus_connection_close(connection);
  dbus_connection_unref(connection);
}

std::unique_ptr<ScreenLock> ScreenLock::connect(const std::string& address) {
  Bus bus(openBus(address));
  if (!bus) return nullptr;
  dbus_connection_set_exit_on_disconnect(bus.get(), 0);
  return std::unique_ptr<ScreenLock>(new ScreenLock(std::move(bus)));
}

ScreenLock::ScreenLock(Bus bus) : bus_(std::move(bus)), end_(eventfd(0, EFD_CLOEXEC)) {
  listen();
  thread_ = std::thread([this] { run(); });
}

ScreenLock::~ScreenLock() {
  eventfd_write(end_.get(), 1);
  thread_.join();
}

void ScreenLock::listen() {
  for (const auto& service : services) {
    const std::string name = service.name;
    const std::string changes = "type='signal',member='ActiveChanged',interface='" + name + "'";
    const std::string owners =
        "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" + name + "'";
    dbus_bus_add_match(bus_.get(), changes.c_str(), nullptr);
    dbus_bus_add_match(bus_.get(), owners.c_str(), nullptr);
    askForState(name);
  }
}

void ScreenLock::askForState(const std::string& service) {
  const Service* known = serviceNamed(service);
  const Message call(dbus_message_new_method_call(known->name, known->path, known->name, "GetActive"));
  dbus_message_set_auto_start(call.get(), 0);  // a service that is not running covers no screen
  dbus_uint32_t serial = 0;
  dbus_connection_send(bus_.get(), call.get(), &serial);
  questions_[serial] = service;
}

void ScreenLock::run() {
  int bus = -1;
  dbus_connection_get_unix_fd(bus_.get(), &bus);
  for (;;) {
    const bool isConnected = dbus_connection_read_write(bus_.get(), 0) != 0;
    while (const Message message{dbus_connection_pop_message(bus_.get())}) handle(message.get());
    dbus_connection_flush(bus_.get());
    if (!isConnected) active_.clear(), isLocked_ = false;
    std::array<pollfd, 2> files = {pollfd{end_.get(), POLLIN, 0}, pollfd{isConnected ? bus : -1, POLLIN, 0}};
    poll(files.data(), files.size(), -1);
    if (files[0].revents != 0) return;
  }
}

void ScreenLock::handle(DBusMessage* message) {
  switch (dbus_message_get_type(message)) {
    case DBUS_MESSAGE_TYPE_SIGNAL:
      handleSignal(message);
      break;
    case DBUS_MESSAGE_TYPE_METHOD_RETURN:
    case DBUS_MESSAGE_TYPE_ERROR:
      handleAnswer(message);
      break;
    default:
      break;
  }
}

void ScreenLock::handleSignal(DBusMessage* message) {
  if (dbus_message_has_member(message, "NameOwnerChanged") != 0) {
    const char* name = nullptr;
    if (dbus_message_get_args(message, nullptr, DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID) == 0) return;
    if (serviceNamed(name) == nullptr) return;
    // One that has ended covers the screen no longer, whatever it said last.
    set(name, false);
    askForState(name);
    return;
  }
  dbus_bool_t isActive = 0;
  const char* interface = dbus_message_get_interface(message);
  if (interface == nullptr || serviceNamed(interface) == nullptr) return;
  if (dbus_message_get_args(message, nullptr, DBUS_TYPE_BOOLEAN, &isActive, DBUS_TYPE_INVALID) == 0) return;
  set(interface, isActive != 0);
}

void ScreenLock::handleAnswer(DBusMessage* message) {
  const auto question = questions_.extract(dbus_message_get_reply_serial(message));
  dbus_bool_t isActive = 0;
  if (question.empty() || dbus_message_get_type(message) == DBUS_MESSAGE_TYPE_ERROR) return;
  if (dbus_message_get_args(message, nullptr, DBUS_TYPE_BOOLEAN, &isActive, DBUS_TYPE_INVALID) == 0) return;
  set(question.mapped(), isActive != 0);
}

void ScreenLock::set(const std::string& service, bool isActive) {
  active_[service] = isActive;
  isLocked_ = std::ranges::any_of(active_, [](const auto& entry) { return entry.second; });
}

}  // namespace tessarin::freedesktop
