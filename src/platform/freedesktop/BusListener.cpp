#include "platform/freedesktop/BusListener.h"

#include <poll.h>

namespace tessarin::freedesktop {

void CloseBus::operator()(DBusConnection* connection) const {
  dbus_connection_close(connection);
  dbus_connection_unref(connection);
}

Bus openBus(DBusBusType kind, const std::string& address) {
  Bus bus(address.empty() ? dbus_bus_get_private(kind, nullptr)
                          : dbus_connection_open_private(address.c_str(), nullptr));
  if (!bus) return nullptr;
  dbus_connection_set_exit_on_disconnect(bus.get(), 0);
  if (!address.empty() && dbus_bus_register(bus.get(), nullptr) == 0) return nullptr;
  return bus;
}

Bus openBusAtOnce(const std::string& address) {
  Bus bus(dbus_connection_open_private(address.c_str(), nullptr));
  if (!bus) return nullptr;
  dbus_connection_set_exit_on_disconnect(bus.get(), 0);
  const Message hello(
      dbus_message_new_method_call(DBUS_SERVICE_DBUS, DBUS_PATH_DBUS, DBUS_INTERFACE_DBUS, "Hello"));
  dbus_connection_send(bus.get(), hello.get(), nullptr);
  return bus;
}

int BusListener::work() {
  bool isConnected = false;
  do {
    // Before and after: what comes in may want an answer, while the two sides are being introduced, too.
    isConnected = dbus_connection_read_write(bus_.get(), 0) != 0;
    while (const Message message{dbus_connection_pop_message(bus_.get())}) handle(message.get());
    isConnected = isConnected && dbus_connection_read_write(bus_.get(), 0) != 0;
  } while (dbus_connection_get_dispatch_status(bus_.get()) == DBUS_DISPATCH_DATA_REMAINS);
  int file = -1;
  if (!isConnected || dbus_connection_get_unix_fd(bus_.get(), &file) == 0) {
    forget();
    return -1;
  }
  return file;
}

short BusListener::events() const {
  const bool hasMore = dbus_connection_get_is_authenticated(bus_.get()) != 0 &&
                       dbus_connection_has_messages_to_send(bus_.get()) != 0;
  return static_cast<short>(hasMore ? POLLIN | POLLOUT : POLLIN);
}

dbus_uint32_t BusListener::ask(Message question) {
  dbus_message_set_auto_start(question.get(), 0);
  dbus_uint32_t serial = 0;
  dbus_connection_send(bus_.get(), question.get(), &serial);
  return serial;
}

void BusListener::handle(DBusMessage* message) {
  switch (dbus_message_get_type(message)) {
    case DBUS_MESSAGE_TYPE_SIGNAL:
      return handleSignal(message);
    case DBUS_MESSAGE_TYPE_METHOD_RETURN:
    case DBUS_MESSAGE_TYPE_ERROR:
      return handleAnswer(dbus_message_get_reply_serial(message), message);
    default:
      return;
  }
}

}  // namespace tessarin::freedesktop
