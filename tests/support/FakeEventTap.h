#pragma once

#include <deque>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/EventTap.h"
#include "platform/KeyCodes.h"

namespace tessarin::testing {

/// A key-down event that produces `text` (UTF-8).
KeyEvent key(std::int64_t keyCode, std::string_view text = "", std::uint64_t flags = 0);
/// A key with no meaning but its text.
KeyEvent letter(std::string_view text, std::uint64_t flags = 0);

/// One event a character of `keys`; ⏎ ⇥ ⌫ ⎋ ← → ↑ ↓ and the space stand for the keys of that name.
std::vector<KeyEvent> keyStream(std::string_view keys);

/// A keyboard played by the test. Keeps the tap's promises: while the owner wants nothing held, everything is
/// judged (or, when quiet, the trigger alone); while an insertion is under way keys are held back and judged
/// in order as soon as the attention changes.
class FakeEventTap final : public EventTap {
 public:
  bool create(Handler handler) override;
  void destroy() override;
  void setEnabled(bool enabled) override { isOn = enabled; }
  bool isEnabled() const override { return isOn; }
  void setAttention(KeyAttention attention, const std::string& trigger) override;

  /// Presses a key. None when it was held back, else the owner's verdict (pass when nobody judges).
  std::optional<KeyVerdict> press(KeyEvent event);
  /// Presses all keys of a `keyStream`.
  void type(std::string_view keys);
  /// Switches the tap off as a platform does, and reports it.
  void disable(KeyEventKind how);
  /// Reports what is no key.
  void report(KeyEventKind what);

  KeyAttention attention() const { return attention_; }
  const std::string& trigger() const { return trigger_; }

  // How the platform behaves.
  bool isUsable = true;
  bool isQuietWhileIdle = false;        ///< the owner sees nothing but the trigger while it collects nothing
  bool givesUp = false;                 ///< every answer comes too late
  bool keysReachDocumentFirst = false;  ///< keys that produce text are in the document before they are judged
  std::function<void(const KeyEvent&)> onReachedDocument;

  // What happened.
  bool isOn = false;
  bool exists = false;
  int creations = 0;
  std::vector<std::pair<KeyEvent, KeyVerdict>> judged;
  std::vector<KeyAttention> attentions;  ///< one a change

 private:
  KeyVerdict judge(KeyEvent event);
  KeyVerdict verdictOf(KeyEvent event);
  bool isHeard(const KeyEvent& event) const;
  void reachDocument(const KeyEvent& event);
  void judgeHeldBack();

  Handler handler_;
  KeyAttention attention_ = KeyAttention::triggerOnly;
  std::string trigger_;
  std::deque<KeyEvent> heldBack_;
  bool isJudgingHeldBack_ = false;
};

}  // namespace tessarin::testing
