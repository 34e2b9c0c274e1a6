#pragma once

#include <memory>
#include <utility>

#include "platform/KeyPoster.h"
#include "platform/x11/X11Keyboard.h"

namespace tessarin::x11 {

/// Synthetic presses by the server's test extension, on the keyboard thread; also without a tap.
class X11KeyPoster final : public KeyPoster {
 public:
  explicit X11KeyPoster(std::shared_ptr<X11Keyboard> keyboard) : keyboard_(std::move(keyboard)) {}

  void post(const std::vector<KeyPress>& presses) override {
    if (keyboard_->start()) keyboard_->control().post(presses);
  }

 private:
  std::shared_ptr<X11Keyboard> keyboard_;
};

}  // namespace tessarin::x11
