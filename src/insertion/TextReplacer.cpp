#include "insertion/TextReplacer.h"

#include <chrono>
#include <string_view>
#include <utility>

#include "base/Log.h"
#include "model/TemplateVariables.h"

namespace tessarin {
namespace {

constexpr std::string_view component = "TextReplacer";
/// 200 ms in all: an application may turn the text into something else, and keys are not held back for that.
constexpr int looksForArrival = 40;
constexpr std::chrono::milliseconds betweenLooks{5};

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
                             finishOnceArrived(text, looksForArrival);
                           } else {
                             finish(outcome == InsertionOutcome::unchanged ? soFar : outcome);
                           }
                         });
}

void TextReplacer::finishOnceArrived(const std::string& text, int looksLeft) {
  if (looksLeft == 0 || accessibilityHelper_.hasArrived(text).value_or(true)) {
    finish(InsertionOutcome::inserted);
    return;
  }
  queue_.after(betweenLooks, [this, text, looksLeft, alive = std::weak_ptr<char>(alive_)] {
    if (!alive.expired()) finishOnceArrived(text, looksLeft - 1);
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
