#include "platform/freedesktop/FcitxInputMethod.h"

#include <string>
#include <string_view>
#include <utility>

namespace tessarin::freedesktop {
namespace {

constexpr const char* fcitxService = "org.fcitx.Fcitx5";

}  // namespace

FcitxInputMethod::FcitxInputMethod(Bus bus) : BusListener(std::move(bus)) {
  const std::string name = fcitxService;
  listenFor("type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',arg0='" + name + "'");
  // Its signals to a desktop's panel tell of a change, whatever they say.
  listenFor("type='signal',sender='" + name + "'");
  askForState();
}

void FcitxInputMethod::lookAgain() {
  if (isRunning_) askForState();
}

// One question at a time, so that nothing piles up before a service that hangs.
void FcitxInputMethod::askForState() {
  isOutOfDate_ = question_ != 0;
  if (isOutOfDate_) return;
  question_ = ask(Message(dbus_message_new_method_call(fcitxService, "/controller",
                                                       "org.fcitx.Fcitx.Controller1", "CurrentInputMethod")));
}

void FcitxInputMethod::handleSignal(DBusMessage* signal) {
  if (dbus_message_is_signal(signal, DBUS_INTERFACE_LOCAL, "Disconnected") != 0) return;
  if (dbus_message_is_signal(signal, DBUS_INTERFACE_DBUS, "NameOwnerChanged") != 0) {
    // What the one before said, or was asked, counts no longer.
    question_ = 0;
    isComposing_ = false;
  }
  askForState();
}

void FcitxInputMethod::handleAnswer(dbus_uint32_t question, DBusMessage* answer) {
  if (question != question_) return;
  question_ = 0;
  const char* name = "";
  isRunning_ = dbus_message_get_type(answer) == DBUS_MESSAGE_TYPE_METHOD_RETURN;
  const bool isKnown =
      isRunning_ && dbus_message_get_args(answer, nullptr, DBUS_TYPE_STRING, &name, DBUS_TYPE_INVALID) != 0;
  isComposing_ = isKnown && *name != '\0' && !std::string_view(name).starts_with("keyboard-");
  if (isOutOfDate_) askForState();
}

}  // namespace tessarin::freedesktop
