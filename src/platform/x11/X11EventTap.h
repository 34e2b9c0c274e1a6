#pragma once

#include <memory>
#include <utility>

#include "platform/EventTap.h"
#include "platform/x11/X11Keyboard.h"

namespace tessarin::x11 {

/// The key tap of an X11 session, by keys that the server holds until they are answered. While nothing is
/// being collected only the trigger's keys are held; no other key is seen.
class X11EventTap final : public EventTap {
 public:
  explicit X11EventTap(std::shared_ptr<X11Keyboard> keyboard) : keyboard_(std::move(keyboard)) {}
  ~X11EventTap() override { X11EventTap::destroy(); }

  bool create(Handler handler) override;
  void destroy() override;
  void setEnabled(bool enabled) override;
  bool isEnabled() const override;
  void setAttention(KeyAttention attention, const std::string& trigger) override;

 private:
  std::shared_ptr<X11Keyboard> keyboard_;
  bool isCreated_ = false;
};

}  // namespace tessarin::x11
