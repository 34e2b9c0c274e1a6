#include "platform/x11/X11EventTap.h"

namespace tessarin::x11 {

bool X11EventTap::create(Handler handler) {
  if (!keyboard_->start()) return false;
  keyboard_->judge().setHandler(std::move(handler));
  isCreated_ = true;
  return true;
}

void X11EventTap::destroy() {
  if (!std::exchange(isCreated_, false)) return;
  keyboard_->control().setEnabled(false);
  keyboard_->judge().setHandler({});
}

void X11EventTap::setEnabled(bool enabled) {
  if (isCreated_) keyboard_->control().setEnabled(enabled);
}

bool X11EventTap::isEnabled() const {
  return keyboard_->control().settings().isEnabled;
}

void X11EventTap::setAttention(KeyAttention attention, const std::string& trigger) {
  keyboard_->control().setAttention(attention, trigger);
}

}  // namespace tessarin::x11
