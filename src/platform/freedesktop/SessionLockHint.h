#pragma once

#include "platform/freedesktop/LockSource.h"

namespace tessarin::freedesktop {

/// The mark that desktops and lockers set on their session in the system's list of sessions while the screen
/// is locked. Requests to lock or unlock are not believed by themselves: whoever follows one sets the mark.
class SessionLockHint final : public LockSource {
 public:
  explicit SessionLockHint(Bus bus);

  bool isLocked() const override { return isLocked_; }

 private:
  void askForState();
  void handleSignal(DBusMessage* signal) override;
  void handleAnswer(dbus_uint32_t question, DBusMessage* answer) override;
  void forget() override { isLocked_ = false; }

  dbus_uint32_t question_ = 0;  // the latest
  bool isLocked_ = false;
};

}  // namespace tessarin::freedesktop
