#include "platform/x11/WholeKeyboard.h"

#include <xcb/xinput.h>

#include "platform/x11/Handles.h"

namespace tessarin::x11 {

void WholeKeyboard::noteKept() {
  ++kept_;
  if (!isTaken_ && kept_ % keysHeldSingly == 0) isTaken_ = take();
}

// Refused where another program has taken it, and then our keys are not held either.
bool WholeKeyboard::take() {
  const std::uint32_t mask = XCB_INPUT_XI_EVENT_MASK_KEY_PRESS;
  const auto cookie = xcb_input_xi_grab_device(keyboard_.connection, keyboard_.root, XCB_CURRENT_TIME,
                                               XCB_NONE, keyboard_.device, XCB_GRAB_MODE_ASYNC,
                                               XCB_GRAB_MODE_ASYNC, XCB_INPUT_GRAB_OWNER_NO_OWNER, 1, &mask);
  const Owned<xcb_input_xi_grab_device_reply_t> reply(
      xcb_input_xi_grab_device_reply(keyboard_.connection, cookie, nullptr));
  return reply && reply->status == XCB_GRAB_STATUS_SUCCESS;
}

void WholeKeyboard::giveBack() {
  kept_ = 0;
  if (!isTaken_) return;
  isTaken_ = false;
  xcb_input_xi_ungrab_device(keyboard_.connection, XCB_CURRENT_TIME, keyboard_.device);
}

}  // namespace tessarin::x11
