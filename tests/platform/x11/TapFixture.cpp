#include "TapFixture.h"

#include <csignal>

#include "platform/KeyCodes.h"
#include "platform/x11/KeyTranslator.h"

namespace tessarin::testing {

void TapFixture::start(const std::vector<std::string>& layout, bool withManager) {
  // As the program does: a connection that the watching process has closed may be written to once more.
  std::signal(SIGPIPE, SIG_IGN);
  if (withManager) display.startWindowManager();
  display.setLayout(layout);
  document = std::make_unique<DocumentWindow>(display.name());
  document->clipboard = "😀";
  typist = std::make_unique<Typist>(display.name());
  keyboard = std::make_shared<x11::X11Keyboard>(
      queue, x11::X11Keyboard::Options{display.name(), watcher, answerTime});
  tap = std::make_unique<x11::X11EventTap>(keyboard);
  poster = std::make_unique<x11::X11KeyPoster>(keyboard);
  ASSERT_TRUE(tap->create([this](const KeyEvent& event) { return judge(event); }));
  attend(KeyAttention::triggerOnly);
  tap->setEnabled(true);
  waitUntilWatching();
}

// A trigger that is seen shows that the thread is at work. Several may come at once, and must not collect.
void TapFixture::waitUntilWatching() {
  isProbing_ = true;
  seen.clear();
  document->text();
  document->clear();
  int typed = 0;
  while (seen.empty()) {
    ASSERT_LT(typed, 200);
    typist->type(trigger);
    ++typed;
    queue.runUntil([this] { return !seen.empty(); }, std::chrono::milliseconds(50));
  }
  ASSERT_TRUE(queue.runUntil([&] { return document->text().size() == typed * trigger.size(); }));
  isProbing_ = false;
  document->clear();
  seen.clear();
}

void TapFixture::attend(KeyAttention attention) {
  tap->setAttention(attention, trigger);
}

void TapFixture::holdBack() {
  holdNext_ = true;
  typist->type(trigger);
  ASSERT_TRUE(queue.runUntil([this] { return document->text() == trigger; }));
  document->clear();
}

KeyVerdict TapFixture::judge(const KeyEvent& event) {
  if (event.kind == KeyEventKind::disabledByTimeout) {
    ++timeOuts;
    collecting_ = false;
    attend(KeyAttention::triggerOnly);
    tap->setEnabled(true);
    return KeyVerdict::pass;
  }
  if (event.kind == KeyEventKind::focusMoved) {
    ++focusMoves;
    return KeyVerdict::pass;
  }
  if (std::exchange(holdNext_, false)) {
    attend(KeyAttention::holdBack);
    return KeyVerdict::pass;
  }
  seen.push_back(event);
  if (isProbing_) return KeyVerdict::pass;
  if (onKey) onKey(event);
  if (!collecting_) {
    collecting_ = event.text == x11::utf16Text(trigger);
    typed_ = 1;
    if (collecting_) attend(KeyAttention::everyKey);
    return KeyVerdict::pass;
  }
  if (event.keyCode == keycode::returnKey) {
    insert();
    return KeyVerdict::swallow;
  }
  if (typed_ > 1 && event.text == x11::utf16Text(trigger)) {
    ++typed_;
    insert();
  } else if (event.keyCode == keycode::deleteBackward) {
    --typed_;
  } else if (event.text.size() == 1 && event.keyCode >= keycode::other) {
    ++typed_;
  } else {
    collecting_ = false;
    attend(KeyAttention::triggerOnly);
  }
  return KeyVerdict::pass;
}

void TapFixture::insert() {
  ++insertions;
  collecting_ = false;
  if (insertion == Insertion::direct) {
    document->text();
    document->replaceBeforeCaret(typed_, "😀");
    attend(KeyAttention::triggerOnly);
    return;
  }
  attend(KeyAttention::holdBack);
  std::vector<KeyPress> presses(static_cast<std::size_t>(typed_), {keycode::deleteBackward, 0});
  presses.push_back({keycode::v, keyflag::control});
  poster->post(presses, [] {});
  finishWhenPasted(document->pastes() + 1);
}

void TapFixture::finishWhenPasted(int pastes) {
  document->text();
  if (document->pastes() >= pastes) {
    attend(KeyAttention::triggerOnly);
    return;
  }
  queue.after(std::chrono::milliseconds(1), [this, pastes] { finishWhenPasted(pastes); });
}

void TapFixture::settle(std::chrono::milliseconds time) {
  typist->sync();
  queue.runUntil([] { return false; }, time);
}

void TapFixture::expectDocument(const std::string& expected) {
  typist->sync();
  queue.runUntil([&] { return document->text() == expected; });
  settle();
  EXPECT_EQ(document->text(), expected);
}

}  // namespace tessarin::testing
