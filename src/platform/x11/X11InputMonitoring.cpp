#include "platform/x11/X11InputMonitoring.h"

#include "base/Log.h"
#include "platform/x11/X11Keyboard.h"

namespace tessarin::x11 {

bool X11InputMonitoring::isGranted() {
  const Connection connection(xcb_connect(display_.empty() ? nullptr : display_.c_str(), nullptr));
  return canTapKeys(connection.get());
}

void X11InputMonitoring::request() {
  if (isGranted()) return;
  log("InputMonitoring",
      "This session has no key tap: an X11 session with XInput 2.2, XTest and XKB is needed");
}

}  // namespace tessarin::x11
