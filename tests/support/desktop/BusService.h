#pragma once

#include <dbus/dbus.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

#include "support/desktop/ChildProcess.h"

namespace tessarin::testing {

/// A session bus of the test's own.
class PrivateBus {
 public:
  const std::string& address() const { return address_; }
  void stop() { daemon_.stop(); }

 private:
  std::string address_;
  ChildProcess daemon_{{"dbus-daemon", "--session", "--nofork", "--print-address=3"}, {}, &address_};
};

/// A service on a bus that can be asked and can tell.
class BusService {
 public:
  /// `answer`: gives the answer to a question, or nullptr, on a thread of its own.
  BusService(const std::string& address, const std::string& name,
             std::function<DBusMessage*(DBusMessage* question)> answer)
      : bus_(dbus_connection_open_private(address.c_str(), nullptr)), answer_(std::move(answer)) {
    dbus_bus_register(bus_, nullptr);
    dbus_connection_set_exit_on_disconnect(bus_, 0);
    dbus_bus_request_name(bus_, name.c_str(), DBUS_NAME_FLAG_DO_NOT_QUEUE, nullptr);
    thread_ = std::thread([this] { run(); });
  }
  ~BusService() {
    isEnding_ = true;
    thread_.join();
    dbus_connection_close(bus_);
    dbus_connection_unref(bus_);
  }
  BusService(const BusService&) = delete;
  BusService& operator=(const BusService&) = delete;

  void send(DBusMessage* message) {
    dbus_connection_send(bus_, message, nullptr);
    dbus_connection_flush(bus_);
    dbus_message_unref(message);
  }

 private:
  void run() {
    while (!isEnding_) {
      dbus_connection_read_write(bus_, 5);
      while (DBusMessage* message = dbus_connection_pop_message(bus_)) {
        if (DBusMessage* reply = answer_(message)) send(reply);
        dbus_message_unref(message);
      }
    }
  }

  DBusConnection* bus_;
  std::function<DBusMessage*(DBusMessage*)> answer_;
  std::atomic<bool> isEnding_ = false;
  std::thread thread_;
};

}  // namespace tessarin::testing
