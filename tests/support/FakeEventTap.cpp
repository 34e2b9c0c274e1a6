#include "support/FakeEventTap.h"

#include <gtest/gtest.h>

#include <map>

#include "platform/KeyCodes.h"
#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

bool producesText(const KeyEvent& event) {
  return event.keyCode == keycode::deleteBackward || event.keyCode >= keycode::other;
}

}  // namespace

KeyEvent key(std::int64_t keyCode, std::string_view text, std::uint64_t flags) {
  KeyEvent event;
  event.keyCode = keyCode;
  event.flags = flags;
  event.text = text::toUtf16(text);
  return event;
}

KeyEvent letter(std::string_view text, std::uint64_t flags) {
  return key(keycode::other, text, flags);
}

std::vector<KeyEvent> keyStream(std::string_view keys) {
  static const std::map<std::string, KeyEvent> named = {{"⏎", key(keycode::returnKey, "\r")},
                                                        {"⇥", key(keycode::tab, "\t")},
                                                        {"⌫", key(keycode::deleteBackward, "\b")},
                                                        {"⎋", key(keycode::escape, "\x1b")},
                                                        {" ", key(keycode::space, " ")},
                                                        {"←", key(keycode::left)},
                                                        {"→", key(keycode::right)},
                                                        {"↑", key(keycode::up)},
                                                        {"↓", key(keycode::down)}};
  std::vector<KeyEvent> events;
  while (!keys.empty()) {
    const std::string symbol = text::firstCharacter(keys);
    const auto found = named.find(symbol);
    events.push_back(found != named.end() ? found->second : letter(symbol));
    keys.remove_prefix(symbol.size());
  }
  return events;
}

bool FakeEventTap::create(Handler handler) {
  ++creations;
  if (!isUsable) return false;
  handler_ = std::move(handler);
  exists = true;
  isOn = false;
  return true;
}

void FakeEventTap::destroy() {
  exists = false;
  isOn = false;
  handler_ = nullptr;
  while (!heldBack_.empty()) {
    reachDocument(heldBack_.front());
    heldBack_.pop_front();
  }
}

void FakeEventTap::setAttention(KeyAttention attention, const std::string& trigger) {
  if (attentions.empty() || attentions.back() != attention) attentions.push_back(attention);
  attention_ = attention;
  trigger_ = trigger;
  judgeHeldBack();
}

std::optional<KeyVerdict> FakeEventTap::press(KeyEvent event) {
  if (isOn && attention_ == KeyAttention::holdBack) {
    heldBack_.push_back(std::move(event));
    return std::nullopt;
  }
  return judge(std::move(event));
}

void FakeEventTap::type(std::string_view keys) {
  for (KeyEvent& event : keyStream(keys)) press(std::move(event));
}

void FakeEventTap::disable(KeyEventKind how) {
  isOn = false;
  report(how);
}

void FakeEventTap::report(KeyEventKind what) {
  KeyEvent event;
  event.kind = what;
  handler_(event);
}

bool FakeEventTap::isHeard(const KeyEvent& event) const {
  if (!handler_ || !isOn) return false;
  return !isQuietWhileIdle || attention_ != KeyAttention::triggerOnly ||
         text::fromUtf16(event.text) == trigger_;
}

KeyVerdict FakeEventTap::judge(KeyEvent event) {
  event.isInDocument = keysReachDocumentFirst && producesText(event);
  if (event.isInDocument) reachDocument(event);
  const KeyVerdict verdict = isHeard(event) ? verdictOf(event) : KeyVerdict::pass;
  if (verdict == KeyVerdict::pass && !event.isInDocument) reachDocument(event);
  if (verdict == KeyVerdict::swallow && event.isInDocument) {
    ADD_FAILURE() << "a key was swallowed that stands in the document already";
  }
  judged.emplace_back(std::move(event), verdict);
  return verdict;
}

KeyVerdict FakeEventTap::verdictOf(KeyEvent event) {
  bool isSwallowed = false;
  event.commitSwallow = [&] {
    if (attention_ != KeyAttention::holdBack) ADD_FAILURE() << "the next key would overtake the insertion";
    return isSwallowed = !givesUp;
  };
  const KeyVerdict verdict = handler_(event);
  if (givesUp) return KeyVerdict::pass;
  if (isSwallowed && verdict == KeyVerdict::pass) ADD_FAILURE() << "a swallowed key was then passed";
  return verdict;
}

void FakeEventTap::reachDocument(const KeyEvent& event) {
  if (event.kind == KeyEventKind::keyDown && onReachedDocument) onReachedDocument(event);
}

void FakeEventTap::judgeHeldBack() {
  if (isJudgingHeldBack_) return;
  isJudgingHeldBack_ = true;
  while (!heldBack_.empty() && attention_ != KeyAttention::holdBack) {
    KeyEvent event = std::move(heldBack_.front());
    heldBack_.pop_front();
    judge(std::move(event));
  }
  isJudgingHeldBack_ = false;
}

}  // namespace tessarin::testing
