#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "insertion/AccessibilityHelper.h"
#include "insertion/PasteHelper.h"
#include "platform/MainQueue.h"
#include "platform/TextInsertion.h"
#include "platform/WallClock.h"

namespace tessarin {

/// Puts the chosen text in the place of the typed shortcode: straight into the focused element where that
/// works, else through the pasteboard. A replacement under way when the replacer goes away is not answered.
/// Main thread.
class TextReplacer final : public TextInsertion {
 public:
  /// All must outlive the replacer.
  TextReplacer(AccessibilityHelper& accessibilityHelper, PasteHelper& pasteHelper, MainQueue& queue,
               const WallClock& clock)
      : accessibilityHelper_(accessibilityHelper), pasteHelper_(pasteHelper), queue_(queue), clock_(clock) {}

  void replace(const Replacement& replacement, Completion done) override;
  void stopWaiting() override;

 private:
  struct Request {
    Replacement replacement;
    Completion done;
  };
  std::string expanded(const std::string& text);
  void startNext();
  struct Job {
    std::string typed;
    std::int64_t count = 0;  ///< characters to be erased
    std::string text;        ///< with its template variables filled in
    bool caretMayHaveMoved = false;
  };
  struct Pasted {
    std::string text;
    std::optional<std::int64_t> caretWithout;  ///< where the caret was before the text came
  };
  /// How often something that does not stand in the document yet has been looked for in vain.
  struct Looks {
    int answered = 0;
    int unanswered = 0;
  };

  void run(const Job& job);
  /// The document was read, and something else stands before the caret: letters may still be on their way.
  void runOnceTyped(const Job& job, Looks looks);
  void lookForTyped(const Job& job, Looks looks);
  void pasteInstead(const Job& job, InsertionOutcome soFar);
  /// Some applications read the pasteboard and go on taking keys before the text stands in the document.
  void finishOnceArrived(const Pasted& pasted, Looks looks);
  void lookAgain(InsertionOutcome soFar, std::function<void()> look);
  void finish(InsertionOutcome outcome);

  AccessibilityHelper& accessibilityHelper_;
  PasteHelper& pasteHelper_;
  MainQueue& queue_;
  const WallClock& clock_;
  std::deque<Request> waiting_;
  Completion done_;
  bool isBusy_ = false;
  struct Watch {
    InsertionOutcome soFar;
  };
  std::shared_ptr<const Watch> watch_;  ///< while something is being looked for again and again
  std::shared_ptr<char> alive_ = std::make_shared<char>();
};

}  // namespace tessarin
