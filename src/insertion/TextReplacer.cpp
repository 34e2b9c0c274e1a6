#include "insertion/TextReplacer.h"

#include <chrono>
#include <string_view>
#include <utility>

#include "base/Log.h"
#include "model/TemplateVariables.h"

namespace tessarin {
namespace {

constexpr std::string_view component = "TextReplacer";
constexpr std::chrono::milliseconds betweenLooks{5};
/// While the application answers: it may have turned the text into something else, and some paste a while
/// after they have read.
constexpr int looksForArrival = 100;
/// While it hangs: keys let go now would overtake the text.
constexpr int looksAtBusyApplication = 400;

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
  run(request.replacement);
}

void TextReplacer::run(const Replacement& replacement) {
  const std::int64_t count = charactersToErase(replacement);
  const std::string text = expanded(replacement.text);
  const auto outcome = accessibilityHelper_.insertText(replacement.typed, count, text);
  if (outcome == InsertionOutcome::inserted) {
    log(component, "Replaced via Accessibility API");
    finish(outcome);
    return;
  }
  log(component, "Falling back to paste method");
  paste(outcome == InsertionOutcome::erasedOnly ? 0 : count, text, outcome);
}

void TextReplacer::paste(std::int64_t count, const std::string& text, InsertionOutcome soFar) {
  const auto chord = accessibilityHelper_.isTerminal() ? PasteChord::shiftInsert : PasteChord::controlV;
  pasteHelper_.pasteText(count, text, chord,
                         [this, soFar, text, alive = std::weak_ptr<char>(alive_)](InsertionOutcome outcome) {
                           if (alive.expired()) return;
                           if (outcome == InsertionOutcome::inserted) {
                             finishOnceArrived(text, {});
                           } else {
                             finish(outcome == InsertionOutcome::unchanged ? soFar : outcome);
                           }
                         });
}

void TextReplacer::finishOnceArrived(const std::string& text, Looks looks) {
  const auto arrival = accessibilityHelper_.arrival(text);
  if (arrival == Arrival::notYet) ++looks.answered;
  if (arrival == Arrival::busy) ++looks.busy;
  const bool isWorthWaiting = (arrival == Arrival::notYet || arrival == Arrival::busy) &&
                              looks.answered < looksForArrival && looks.busy < looksAtBusyApplication;
  if (!isWorthWaiting) {
    finish(InsertionOutcome::inserted);
    return;
  }
  queue_.after(betweenLooks, [this, text, looks, alive = std::weak_ptr<char>(alive_)] {
    if (!alive.expired()) finishOnceArrived(text, looks);
  });
}

void TextReplacer::finish(InsertionOutcome outcome) {
  const std::weak_ptr<char> alive = alive_;
  if (const auto done = std::exchange(done_, nullptr)) done(outcome);
  if (alive.expired()) return;
  isBusy_ = false;
  if (!waiting_.empty()) startNext();
}

}  // namespace tessarin
