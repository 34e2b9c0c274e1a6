#pragma once

#include <dbus/dbus.h>

#include <memory>
#include <string>
#include <utility>

namespace tessarin::freedesktop {

struct CloseBus {
  void operator()(DBusConnection* connection) const;
};
using Bus = std::unique_ptr<DBusConnection, CloseBus>;

struct UnrefMessage {
  void operator()(DBusMessage* message) const { dbus_message_unref(message); }
};
using Message = std::unique_ptr<DBusMessage, UnrefMessage>;

/// A connection of our own: to the address, or where that is empty to the bus of that kind. Null when there
/// is none.
Bus openBus(DBusBusType kind, const std::string& address);
/// A connection of our own that does not wait for whoever is behind the address to say something. Null when
/// nobody listens there.
Bus openBusAtOnce(const std::string& address);

/// Follows somebody on a bus, and never waits for an answer. Worked by one thread.
class BusListener {
 public:
  explicit BusListener(Bus bus) : bus_(std::move(bus)) {}
  virtual ~BusListener() = default;
  BusListener(const BusListener&) = delete;
  BusListener& operator=(const BusListener&) = delete;

  /// Takes in what has come. Answers the file to wait for; -1 once the bus has gone.
  int work();
  /// What to wait for on that file, as poll takes it.
  short events() const;

 protected:
  void listenFor(const std::string& rule) { dbus_bus_add_match(bus_.get(), rule.c_str(), nullptr); }
  /// Sends the question, without starting a service for it; its answer comes to `handleAnswer` under the
  /// serial that this answers.
  dbus_uint32_t ask(Message question);

  virtual void handleSignal(DBusMessage* signal) = 0;
  virtual void handleAnswer(dbus_uint32_t question, DBusMessage* answer) = 0;
  /// The bus has gone, and with it all that was said there.
  virtual void forget() = 0;

 private:
  void handle(DBusMessage* message);

  Bus bus_;
};

}  // namespace tessarin::freedesktop
