#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/EventTap.h"

namespace tessarin {

/// Whether keys may be judged now.
enum class KeyGuard {
  open,
  shut,
  unsure,  ///< shut as far as is known, and being asked: a key that can only begin something may be judged,
           ///< as the answer will have come by the next one
};

/// A tap that delivers nothing, and passes every key, while the session says that keys are nobody's business
/// (a locked screen) or another's (an input method that composes).
class GuardedEventTap final : public EventTap {
 public:
  /// `tap` outlives this. `guard` is asked for each key and must be quick.
  GuardedEventTap(EventTap& tap, std::function<KeyGuard()> guard) : tap_(tap), guard_(std::move(guard)) {}

  bool create(Handler handler) override {
    return tap_.create([this, handler = std::move(handler)](const KeyEvent& event) {
      const bool isKey = event.kind == KeyEventKind::keyDown || event.kind == KeyEventKind::flagsChanged;
      return isKey && isShut(handler) ? KeyVerdict::pass : handler(event);
    });
  }
  void destroy() override { tap_.destroy(); }
  void setEnabled(bool enabled) override { tap_.setEnabled(enabled); }
  bool isEnabled() const override { return tap_.isEnabled(); }
  void setAttention(KeyAttention attention, const std::string& trigger) override {
    attention_ = attention;
    tap_.setAttention(attention, trigger);
  }

 private:
  bool isShut(const Handler& handler) {
    const bool begins = attention_ == KeyAttention::triggerOnly;
    const KeyGuard guard = guard_();
    if (guard == KeyGuard::open || (guard == KeyGuard::unsure && begins)) return false;
    // What has been collected until now ends, as the keys that follow go past unseen.
    KeyEvent interruption;
    interruption.kind = KeyEventKind::disabledByUserInput;
    if (!begins) handler(interruption);
    return true;
  }

  EventTap& tap_;
  std::function<KeyGuard()> guard_;
  KeyAttention attention_ = KeyAttention::triggerOnly;
};

}  // namespace tessarin
