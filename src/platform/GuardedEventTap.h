#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/EventTap.h"

namespace tessarin {

/// A tap that delivers nothing, and passes every key, while the session says that keys are nobody's business
/// (a locked screen).
class GuardedEventTap final : public EventTap {
 public:
  /// `tap` outlives this. `isGuarded` is asked for each event and must be quick.
  GuardedEventTap(EventTap& tap, std::function<bool()> isGuarded)
      : tap_(tap), isGuarded_(std::move(isGuarded)) {}

  bool create(Handler handler) override {
    return tap_.create([isGuarded = isGuarded_, handler = std::move(handler)](const KeyEvent& event) {
      const bool isKey = event.kind == KeyEventKind::keyDown || event.kind == KeyEventKind::flagsChanged;
      return isKey && isGuarded() ? KeyVerdict::pass : handler(event);
    });
  }
  void destroy() override { tap_.destroy(); }
  void setEnabled(bool enabled) override { tap_.setEnabled(enabled); }
  bool isEnabled() const override { return tap_.isEnabled(); }
  void setAttention(KeyAttention attention, const std::string& trigger) override {
    tap_.setAttention(attention, trigger);
  }

 private:
  EventTap& tap_;
  std::function<bool()> isGuarded_;
};

}  // namespace tessarin
