#pragma once

#include "platform/freedesktop/BusListener.h"

namespace tessarin::freedesktop {

/// The engine in use with IBus, which tells of every change of it.
class IBusEngine final : public BusListener {
 public:
  /// `bus` is the private one of the IBus daemon.
  explicit IBusEngine(Bus bus);

  /// Keyboard layouts do not compose; no engine does not, either.
  bool isComposing() const { return isComposing_; }

 private:
  void setName(const char* name);
  void handleSignal(DBusMessage* signal) override;
  void handleAnswer(dbus_uint32_t question, DBusMessage* answer) override;
  void forget() override { isComposing_ = false; }

  dbus_uint32_t question_ = 0;  // 0 once it does not matter any more
  bool isComposing_ = false;
};

}  // namespace tessarin::freedesktop
