#pragma once

#include <map>
#include <string>

#include "platform/freedesktop/LockSource.h"

namespace tessarin::freedesktop {

/// The screen savers and lockers of the session bus.
class ScreenSavers final : public LockSource {
 public:
  explicit ScreenSavers(Bus bus);

  bool isLocked() const override;

 private:
  void askForState(const std::string& service);
  void handleSignal(DBusMessage* signal) override;
  void handleAnswer(dbus_uint32_t question, DBusMessage* answer) override;
  void forget() override { active_.clear(); }

  std::map<std::string, bool> active_;              // by service
  std::map<dbus_uint32_t, std::string> questions_;  // services by the serial of our call
};

}  // namespace tessarin::freedesktop
