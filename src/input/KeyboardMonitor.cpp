#include "input/KeyboardMonitor.h"

#include "base/Log.h"
#include "platform/Accessibility.h"
#include "platform/KeyCodes.h"
#include "platform/MainQueue.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

constexpr const char* monitorComponent = "KeyboardMonitor";

std::optional<std::string> charactersOf(const KeyEvent& event) {
  if (event.text.empty()) return std::nullopt;
  return text::fromUtf16(event.text);
}

}  // namespace

KeyboardMonitor::~KeyboardMonitor() {
  stop();
}

bool KeyboardMonitor::start() {
  if (hasTap_) return true;
  if (!accessibility_.isTrusted()) {
    log(monitorComponent, "No Accessibility permission — requesting");
    accessibility_.prompt(PromptManner::unobtrusive);
    return false;
  }
  if (!tap_.create([this](const KeyEvent& event) { return handle(event); })) {
    log(monitorComponent, "Failed to create event tap — check Accessibility permission");
    return false;
  }
  hasTap_ = true;
  tellAttention();
  tap_.setEnabled(true);
  healthCheckTimer_ = mainQueue_.repeat(healthCheckInterval, [this] { checkHealth(); });
  log(monitorComponent, "Event tap started (.defaultTap)");
  return true;
}

void KeyboardMonitor::stop() {
  healthCheckTimer_.reset();
  if (hasTap_) {
    hasTap_ = false;
    tap_.setEnabled(false);
    tap_.destroy();
  }
  log(monitorComponent, "Event tap stopped");
}

void KeyboardMonitor::setAttention(KeyAttention attention, const std::string& trigger) {
  attention_ = attention;
  trigger_ = trigger;
  if (!judging_) tellAttention();
}

void KeyboardMonitor::tellAttention() {
  if (hasTap_) tap_.setAttention(attention_, trigger_);
}

bool KeyboardMonitor::swallows(std::int64_t keyCode) const {
  if (!isIntercepting) return false;
  switch (keyCode) {
    case keycode::returnKey:
    case keycode::tab:
      return !leavesConfirmingKeys;
    case keycode::escape:
    case keycode::down:
    case keycode::up:
      return true;
    case keycode::left:
    case keycode::right:
      return shouldConsumeArrows;
    default:
      return false;
  }
}

bool KeyboardMonitor::isCurrentKeySwallowed() const {
  return swallowedCurrentKey_ || swallows(currentKey_);
}

bool KeyboardMonitor::swallowCurrentKey() {
  tellAttention();
  if (commitSwallow_ && !commitSwallow_()) return false;
  swallowedCurrentKey_ = true;
  return true;
}

KeyVerdict KeyboardMonitor::handle(const KeyEvent& event) {
  judging_ = true;
  const KeyVerdict verdict = judge(event);
  judging_ = false;
  // Last: a tap may let the next key in, and so come back here, as soon as it hears this.
  tellAttention();
  return verdict;
}

KeyVerdict KeyboardMonitor::judge(const KeyEvent& event) {
  switch (event.kind) {
    case KeyEventKind::disabledByTimeout:
    case KeyEventKind::disabledByUserInput:
      revive();
      return KeyVerdict::pass;
    case KeyEventKind::focusMoved:
      if (onInterrupted) onInterrupted();
      return KeyVerdict::pass;
    case KeyEventKind::flagsChanged:
      return KeyVerdict::pass;
    case KeyEventKind::keyDown:
      break;
  }
  if (!accessibility_.isTrusted()) return KeyVerdict::pass;
  accessibility_.beginBudget(event.budget);
  handOver(charactersOf(event), event);
  return isCurrentKeySwallowed() ? KeyVerdict::swallow : KeyVerdict::pass;
}

void KeyboardMonitor::handOver(const std::optional<std::string>& characters, const KeyEvent& event) {
  currentKey_ = event.keyCode;
  swallowedCurrentKey_ = swallows(event.keyCode);
  currentKeyInDocument_ = event.isInDocument;
  commitSwallow_ = event.commitSwallow;
  if (onKeyEvent) onKeyEvent(characters, event.keyCode, event.flags);
  commitSwallow_ = nullptr;
}

void KeyboardMonitor::revive() {
  if (hasTap_) tap_.setEnabled(true);
  if (onInterrupted) onInterrupted();
}

void KeyboardMonitor::checkHealth() {
  if (!hasTap_ || tap_.isEnabled()) return;
  log(monitorComponent, "Re-enabling disabled event tap");
  tap_.setEnabled(true);
  if (onInterrupted) onInterrupted();
}

}  // namespace tessarin
