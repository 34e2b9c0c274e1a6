#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <string>

namespace tessarin {

/// What a tap delivers: the two kinds of key event, the two ways in which a platform switches a tap off, and
/// that the focus has gone to another window while more than the trigger was attended to.
enum class KeyEventKind { keyDown, flagsChanged, disabledByTimeout, disabledByUserInput, focusMoved };

struct KeyEvent {
  KeyEventKind kind = KeyEventKind::keyDown;
  std::int64_t keyCode = 0;   ///< see platform/KeyCodes.h
  std::uint64_t flags = 0;    ///< see platform/KeyCodes.h
  std::u16string text;        ///< what the key produces, all modifiers applied; may be empty
  bool isInDocument = false;  ///< whether the key, should it be passed, has reached the document already
  /// How long the judging may take at most before the platform gives up on the answer.
  std::chrono::milliseconds budget{150};
  /// Settles that the key is swallowed, for a handler that goes on to do what cannot be undone: however long
  /// that takes, the key is not let by. False when it has been already; nothing must be done then. The next
  /// key may come before the handler returns, so the attention is told first. Absent where the verdict alone
  /// counts.
  std::function<bool()> commitSwallow;
};

enum class KeyVerdict { pass, swallow };

/// How much of the keyboard the tap's owner needs at the moment.
enum class KeyAttention {
  triggerOnly,  ///< nothing is being collected: a backend may keep quiet about every key but the trigger
  everyKey,     ///< every key is judged before the next one
  holdBack,     ///< an insertion is under way: keys are kept, unjudged; when the attention changes they are
                ///< judged in order as if typed just then
};

/// A session-wide keyboard filter. Every call and every callback happens on the main thread.
class EventTap {
 public:
  using Handler = std::function<KeyVerdict(const KeyEvent&)>;

  virtual ~EventTap() = default;

  /// Creates the tap, switched off. False where the session has no tap that can be used.
  virtual bool create(Handler handler) = 0;
  /// Switches the tap off and forgets the handler. Keys held back are passed on.
  virtual void destroy() = 0;
  virtual void setEnabled(bool enabled) = 0;
  /// False after the platform switched the tap off, until it is switched on again.
  virtual bool isEnabled() const = 0;
  /// Told after each event and at every change in between. `trigger` is the trigger character, one grapheme
  /// cluster in UTF-8. Takes effect before the next key is let in.
  virtual void setAttention(KeyAttention attention, const std::string& trigger) = 0;
};

}  // namespace tessarin
