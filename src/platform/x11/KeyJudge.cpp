#include "platform/x11/KeyJudge.h"

#include <utility>

namespace tessarin::x11 {

KeyVerdict KeyJudge::Owner::judge(const KeyEvent& event) const {
  const auto current = handler;
  return current ? (*current)(event) : KeyVerdict::pass;
}

void KeyJudge::setHandler(EventTap::Handler handler) {
  owner_->handler = handler ? std::make_shared<const EventTap::Handler>(std::move(handler)) : nullptr;
}

std::optional<KeyVerdict> KeyJudge::ask(const KeyEvent& event) {
  const auto question = std::make_shared<KeyQuestion>(answerTime_);
  {
    const std::lock_guard lock(mutex_);
    if (closed_) return std::nullopt;
    if (question_) question_->makeWay();
    question_ = question;
  }
  queue_.async([question, owner = owner_, event = KeyEvent(event)]() mutable {
    const auto budget = question->claim();
    if (!budget) return;
    event.budget = *budget;
    event.commitSwallow = [question] { return question->commitSwallow(); };
    question->answer(owner->judge(event));
    // What comes next is painting. On the same processor as the X server or the application, which the system
    // does not interrupt it for, it would keep the key from them.
    question->standBack();
  });
  return question->await();
}

void KeyJudge::reportDeparture() {
  const std::lock_guard lock(mutex_);
  if (question_) question_->depart();
}

void KeyJudge::report(KeyEventKind kind) {
  queue_.async([owner = owner_, kind] {
    KeyEvent event;
    event.kind = kind;
    owner->judge(event);
  });
}

void KeyJudge::open() {
  const std::lock_guard lock(mutex_);
  closed_ = false;
}

void KeyJudge::close() {
  const std::lock_guard lock(mutex_);
  closed_ = true;
  if (question_) question_->cancel();
}

}  // namespace tessarin::x11
