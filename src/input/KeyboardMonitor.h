#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "base/Subscription.h"
#include "platform/EventTap.h"

namespace tessarin {

class Accessibility;
class MainQueue;

/// Hands every key-down event of the session to its owner and swallows those that belong to the popup. Keeps
/// the tap alive: a tap that the platform switched off is switched on again at once, and looked after every
/// five seconds. Keys that come when the user's trust has gone pass unheard. Main thread.
class KeyboardMonitor {
 public:
  static constexpr std::chrono::seconds healthCheckInterval{5};

  KeyboardMonitor(EventTap& tap, Accessibility& accessibility, MainQueue& mainQueue)
      : tap_(tap), accessibility_(accessibility), mainQueue_(mainQueue) {}
  ~KeyboardMonitor();
  KeyboardMonitor(const KeyboardMonitor&) = delete;
  KeyboardMonitor& operator=(const KeyboardMonitor&) = delete;

  /// True when a tap is running afterwards. Fails, with a log line, without accessibility trust (which is
  /// then asked for) and where the session has no tap; the owner tries again later.
  bool start();
  void stop();
  bool isRunning() const { return hasTap_; }

  /// Tells the tap what the owner needs: at once between keys, else when the key in hand has been judged.
  void setAttention(KeyAttention attention, const std::string& trigger);

  /// While `onKeyEvent` runs: whether the key, should it be passed, is in the document already.
  bool isCurrentKeyInDocument() const { return currentKeyInDocument_; }
  /// While `onKeyEvent` runs, for a key that is not in the document: settles that it is swallowed, whatever
  /// the rule below says and however long the rest takes; the attention told last is in force from then on.
  /// False when that comes too late and the key has been let by.
  bool swallowCurrentKey();
  /// While `onKeyEvent` runs: whether the key would be swallowed if it ended now.
  bool isCurrentKeySwallowed() const;
  /// The rule as the flags stand now: Return, Tab, Escape, Up and Down while intercepting, Left and Right
  /// only with `shouldConsumeArrows` as well, Return and Tab not with `leavesConfirmingKeys`.
  bool swallows(std::int64_t keyCode) const;

  /// A key-down event; `characters` is absent when the key produces no text. The flags may be changed
  /// meanwhile: a key is swallowed when the rule asks for it before or after the call.
  std::function<void(const std::optional<std::string>& characters, std::int64_t keyCode, std::uint64_t flags)>
      onKeyEvent;
  /// Keys may have gone to the document unseen: what is being collected cannot be trusted any more.
  std::function<void()> onInterrupted;

  bool isIntercepting = false;        ///< set while the popup is shown
  bool shouldConsumeArrows = false;   ///< set while the skin-tone picker is open
  bool leavesConfirmingKeys = false;  ///< set while no row is highlighted

 private:
  KeyVerdict handle(const KeyEvent& event);
  KeyVerdict judge(const KeyEvent& event);
  void handOver(const std::optional<std::string>& characters, const KeyEvent& event);
  void revive();
  void checkHealth();
  void tellAttention();

  EventTap& tap_;
  Accessibility& accessibility_;
  MainQueue& mainQueue_;

  bool hasTap_ = false;
  Subscription healthCheckTimer_;
  bool judging_ = false;
  bool currentKeyInDocument_ = false;
  bool swallowedCurrentKey_ = false;  ///< settled, or by the rule as it stood before the key
  std::int64_t currentKey_ = 0;
  std::function<bool()> commitSwallow_;
  KeyAttention attention_ = KeyAttention::triggerOnly;
  std::string trigger_;
};

}  // namespace tessarin
