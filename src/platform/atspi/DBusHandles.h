#pragma once

#include <dbus/dbus.h>

#include <memory>

/// Owners of the D-Bus library's objects.
namespace tessarin::atspi {

struct MessageDeleter {
  void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using MessagePtr = std::unique_ptr<DBusMessage, MessageDeleter>;

/// For private connections, which must be closed by their owner.
struct ConnectionDeleter {
  void operator()(DBusConnection* connection) const {
    dbus_connection_close(connection);
    dbus_connection_unref(connection);
  }
};
using ConnectionPtr = std::unique_ptr<DBusConnection, ConnectionDeleter>;

/// Gives up waiting for the reply when it has not come.
struct PendingCallDeleter {
  void operator()(DBusPendingCall* pending) const {
    dbus_pending_call_cancel(pending);
    dbus_pending_call_unref(pending);
  }
};
using PendingCallPtr = std::unique_ptr<DBusPendingCall, PendingCallDeleter>;

class ErrorHolder {
 public:
  ErrorHolder() { dbus_error_init(&error_); }
  ~ErrorHolder() { dbus_error_free(&error_); }
  ErrorHolder(const ErrorHolder&) = delete;
  ErrorHolder& operator=(const ErrorHolder&) = delete;
  DBusError* get() { return &error_; }

 private:
  DBusError error_;
};

}  // namespace tessarin::atspi
