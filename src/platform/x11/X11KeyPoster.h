#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "platform/KeyPoster.h"
#include "platform/x11/X11Keyboard.h"

namespace tessarin::x11 {

/// Synthetic presses by the server's test extension, on the keyboard thread; also without a tap.
class X11KeyPoster final : public KeyPoster {
 public:
  explicit X11KeyPoster(std::shared_ptr<X11Keyboard> keyboard) : keyboard_(std::move(keyboard)) {}

  void post(const std::vector<KeyPress>& presses, std::function<void()> made) override {
    auto tell = [&queue = keyboard_->queue(), made = std::move(made)] { queue.async(made); };
    keyboard_->start() ? keyboard_->control().post({presses, std::move(tell)}) : tell();
  }

 private:
  std::shared_ptr<X11Keyboard> keyboard_;
};

}  // namespace tessarin::x11
