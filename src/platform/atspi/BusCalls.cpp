#include "platform/atspi/BusCalls.h"

namespace tessarin::atspi {

ConnectionPtr connectToSessionBus(const std::string& address) {
  if (!address.empty()) return connectTo(address);
  ErrorHolder error;
  ConnectionPtr connection(dbus_bus_get_private(DBUS_BUS_SESSION, error.get()));
  if (connection) dbus_connection_set_exit_on_disconnect(connection.get(), FALSE);
  return connection;
}

ConnectionPtr connectTo(const std::string& address) {
  ErrorHolder error;
  ConnectionPtr connection(dbus_connection_open_private(address.c_str(), error.get()));
  if (!connection) return nullptr;
  dbus_connection_set_exit_on_disconnect(connection.get(), FALSE);
  if (!dbus_bus_register(connection.get(), error.get())) return nullptr;
  return connection;
}

MessagePtr callAndWait(DBusConnection* connection, DBusMessage* request, std::chrono::milliseconds longest) {
  ErrorHolder error;
  return MessagePtr(dbus_connection_send_with_reply_and_block(
      connection, request, static_cast<int>(longest.count()), error.get()));
}

}  // namespace tessarin::atspi
