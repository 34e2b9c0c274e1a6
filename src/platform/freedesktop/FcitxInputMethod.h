#pragma once

#include "platform/freedesktop/BusListener.h"

namespace tessarin::freedesktop {

/// The input method in use with Fcitx 5. It tells of its coming and going and of new groups, but of a change
/// to another input method only where a desktop's panel listens: so it is asked again when that can matter.
class FcitxInputMethod final : public BusListener {
 public:
  /// `bus` is the session's.
  explicit FcitxInputMethod(Bus bus);

  /// As of its last answer. Keyboard layouts do not compose, nor does a service that does not run.
  bool isComposing() const { return isComposing_; }
  void lookAgain();

 private:
  void askForState();
  void handleSignal(DBusMessage* signal) override;
  void handleAnswer(dbus_uint32_t question, DBusMessage* answer) override;
  void forget() override { isComposing_ = false; }

  dbus_uint32_t question_ = 0;  // not answered yet; 0 when there is none
  bool isOutOfDate_ = false;    // something happened since it was asked
  bool isRunning_ = false;
  bool isComposing_ = false;
};

}  // namespace tessarin::freedesktop
