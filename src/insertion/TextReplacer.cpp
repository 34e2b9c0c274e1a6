#include "insertion/TextReplacer.h"

#include <chrono>
#include <string_view>
#include <utility>

#include "base/Log.h"
#include "model/TemplateVariables.h"

namespace tessarin {
namespace {

constexpr std::string_view replacerComponent = "TextReplacer";
constexpr std::chrono::milliseconds betweenLooks{5};
/// While the application answers: it may have turned the text into something else. Input methods and slow
/// editors were seen to take half of this time.
constexpr int looksAtAnswers = 100;
/// While it hangs: keys let go now would overtake the text.
constexpr int looksAtSilence = 400;

using Arrival = AccessibilityHelper::Arrival;

std::int64_t charactersToErase(const Replacement& replacement) {
  return replacement.deleteCount + (replacement.includeTriggerChar ? 1 : 0);
}

}  // namespace

std::string TextReplacer::expanded(const std::string& text) {
  return expandTemplateVariables(
      text, {.clock = clock_, .pasteboardText = [this] { return pasteHelper_.userText().value_or(""); }});
}

void TextReplacer::replace(const Replacement& replacement, Completion done) {
  waiting_.push_back({replacement, std::move(done)});
  if (!isBusy_) startNext();
}

void TextReplacer::startNext() {
  isBusy_ = true;
  Request request = std::move(waiting_.front());
  waiting_.pop_front();
  done_ = std::move(request.done);
  const Replacement& replacement = request.replacement;
  run({replacement.typed, charactersToErase(replacement), expanded(replacement.text),
       replacement.caretMayHaveMoved});
}

void TextReplacer::run(const Job& job) {
  const auto outcome = accessibilityHelper_.insertText(job.typed, job.count, job.text);
  switch (outcome) {
    case InsertionOutcome::inserted:
      log(replacerComponent, "Replaced via Accessibility API");
      return finish(outcome);
    case InsertionOutcome::differs:
      return runOnceTyped(job, {});
    case InsertionOutcome::unchanged:
    case InsertionOutcome::erasedOnly:
      return pasteInstead(job, outcome);
  }
}

void TextReplacer::runOnceTyped(const Job& job, Looks looks) {
  lookAgain(InsertionOutcome::differs, [this, job, looks] { lookForTyped(job, looks); });
}

void TextReplacer::lookForTyped(const Job& job, Looks looks) {
  const auto stands = accessibilityHelper_.stands(job.typed, job.count);
  if (stands == true) return run(job);
  ++(stands ? looks.answered : looks.unanswered);
  if (looks.answered == looksAtAnswers) {
    // The application has corrected or completed the shortcode: erasing would take away other text.
    log(replacerComponent, "Something else stands before the caret, and is left alone");
    return finish(InsertionOutcome::differs);
  }
  if (looks.unanswered == looksAtSilence) {
    // Its keys wait for it as well, so BackSpaces will find the letters.
    return pasteInstead(job, InsertionOutcome::unchanged);
  }
  runOnceTyped(job, looks);
}

void TextReplacer::pasteInstead(const Job& job, InsertionOutcome soFar) {
  const bool isErased = soFar == InsertionOutcome::erasedOnly;
  if (job.caretMayHaveMoved && !isErased) {
    log(replacerComponent, "The caret may have moved, and nothing is erased unseen: the text is left alone");
    return finish(soFar);
  }
  log(replacerComponent, "Falling back to paste method");
  const Pasted pasted{job.text, accessibilityHelper_.caretWithout(isErased ? "" : job.typed)};
  const std::string typed = accessibilityHelper_.isPasteObservable() ? job.typed : std::string();
  pasteHelper_.pasteText({isErased ? 0 : job.count, job.text, accessibilityHelper_.pasteChord(), typed},
                         [this, pasted, alive = std::weak_ptr<char>(alive_)](InsertionOutcome outcome) {
                           if (alive.expired()) return;
                           outcome == InsertionOutcome::inserted ? finishOnceArrived(pasted, {})
                                                                 : finish(outcome);
                         });
}

void TextReplacer::finishOnceArrived(const Pasted& pasted, Looks looks) {
  const auto arrival = accessibilityHelper_.arrival(pasted.text, pasted.caretWithout);
  if (arrival == Arrival::notYet) ++looks.answered;
  if (arrival == Arrival::busy) ++looks.unanswered;
  const bool isWorthWaiting = (arrival == Arrival::notYet || arrival == Arrival::busy) &&
                              looks.answered < looksAtAnswers && looks.unanswered < looksAtSilence;
  if (!isWorthWaiting) {
    finish(InsertionOutcome::inserted);
    return;
  }
  lookAgain(InsertionOutcome::inserted, [this, pasted, looks] { finishOnceArrived(pasted, looks); });
}

void TextReplacer::lookAgain(InsertionOutcome soFar, std::function<void()> look) {
  watch_ = std::make_shared<Watch>(Watch{soFar});
  queue_.after(betweenLooks, [look = std::move(look), watch = std::weak_ptr(watch_)] {
    if (!watch.expired()) look();
  });
}

void TextReplacer::stopWaiting() {
  if (watch_) return finish(watch_->soFar);
  pasteHelper_.stopWaiting();
}

void TextReplacer::finish(InsertionOutcome outcome) {
  watch_ = nullptr;
  const std::weak_ptr<char> alive = alive_;
  if (const auto done = std::exchange(done_, nullptr)) done(outcome);
  if (alive.expired()) return;
  isBusy_ = false;
  if (!waiting_.empty()) startNext();
}

}  // namespace tessarin
