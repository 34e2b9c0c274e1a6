#include "platform/atspi/FocusModel.h"

namespace tessarin::atspi {

bool FocusModel::elementFocused(const ObjectReference& element) {
  if (focus_.window && focus_.window->bus != element.bus) focus_.window.reset();
  focus_.element = element;
  lost_ = {};
  const bool moved = lastElement_ && lastElement_->bus == element.bus && *lastElement_ != element;
  lastElement_ = element;
  return moved;
}

void FocusModel::elementUnfocused(const ObjectReference& element) {
  if (focus_.element != element) return;
  letGo();
  focus_.element.reset();
}

void FocusModel::letGo() {
  if (focus_.element) lost_ = focus_;
}

void FocusModel::windowActivated(const ObjectReference& window) {
  const bool fromOtherWindow = focus_.window && focus_.window != window;
  if (focus_.element && (fromOtherWindow || focus_.element->bus != window.bus)) focus_.element.reset();
  if (lost_.window == window && !focus_.element) focus_.element = lost_.element;
  lost_ = {};
  focus_.window = window;
  ++activations_;
}

void FocusModel::windowDeactivated(const ObjectReference& window) {
  // The next window may be announced before the last one is let go.
  if (focus_.window && focus_.window != window) return;
  letGo();
  if (focus_.element && focus_.element->bus == window.bus) focus_.element.reset();
  focus_.window.reset();
}

void FocusModel::ownFocused() {
  focus_ = {};
  lost_ = {};
}

void FocusModel::applicationGone(const std::string& bus) {
  if (focus_.element && focus_.element->bus == bus) focus_.element.reset();
  if (focus_.window && focus_.window->bus == bus) focus_.window.reset();
  if (lost_.element && lost_.element->bus == bus) lost_ = {};
}

void FocusModel::found(const Focus& focus) {
  focus_ = focus;
  if (!focus.element) return;
  lastElement_ = focus.element;
  lost_ = {};
}

std::optional<ObjectReference> FocusModel::windowToSearch() const {
  return focus_.element ? std::nullopt : focus_.window;
}

}  // namespace tessarin::atspi
