#include "platform/x11/KeyFilter.h"

#include <poll.h>
#include <xkbcommon/xkbcommon-keysyms.h>

#include <iterator>
#include <utility>

#include "base/Log.h"
#include "platform/KeyCodes.h"

namespace tessarin::x11 {
namespace {

xkb_keysym_t symbolOf(std::int64_t keyCode) {
  switch (keyCode) {
    case keycode::deleteBackward:
      return XKB_KEY_BackSpace;
    case keycode::v:
      return XKB_KEY_v;
    case keycode::r:
      return XKB_KEY_r;
    case keycode::o:
      return XKB_KEY_o;
    case keycode::insert:
      return XKB_KEY_Insert;
    default:
      return XKB_KEY_NoSymbol;
  }
}

std::uint8_t modifiersOf(std::uint64_t flags, const ModifierBits& bits) {
  unsigned modifiers = 0;
  if ((flags & keyflag::shift) != 0) modifiers |= ModifierBits::shift;
  if ((flags & keyflag::control) != 0) modifiers |= ModifierBits::control;
  if ((flags & keyflag::option) != 0) modifiers |= bits.alt;
  if ((flags & keyflag::command) != 0) modifiers |= bits.super;
  return static_cast<std::uint8_t>(modifiers);
}

}  // namespace

KeyFilter::KeyFilter(const SessionKeyboard& keyboard, TapControl& control, KeyJudge& judge, KeyWatch& watch)
    : keyboard_(keyboard),
      control_(control),
      judge_(judge),
      watch_(watch),
      events_(keyboard),
      grabs_(keyboard, watch),
      whole_(keyboard),
      synthetic_(keyboard, events_, whole_, [this](const TypedKey& key) { keepUnlessModifier(key); }) {
  refreshLayout();
}

std::optional<KeyFilter::Loss> KeyFilter::run() {
  while (!isLost()) {
    // The wake-up goes first: one that comes after the look at the control must not be lost.
    control_.clearWakeUp();
    if (control_.isStopping()) {
      leave();
      return std::nullopt;
    }
    takeKeys();
  }
  return abandon();
}

// What the watcher has let by must not be judged any more, though its events may still stand in the queue.
bool KeyFilter::isLost() {
  watch_.listen();
  return watch_.hasLetGo() || xcb_connection_has_error(keyboard_.connection) != 0;
}

void KeyFilter::takeKeys() {
  bool busy = settle();
  busy |= carryOutPosts();
  xcb_flush(keyboard_.connection);
  // After everything that writes or waits for a reply: both may read events, and the socket then does not
  // tell of them.
  while (!isLost()) {
    const auto press = events_.next();
    if (!press) break;
    takeNews();
    handle(press->key);
    watch_.sayAlive();
    busy = true;
  }
  busy |= takeNews();
  if (!busy) rest();
}

// No key is in hand here, so that nothing which takes its time keeps one waiting.
void KeyFilter::rest() {
  watch_.sayIdle();
  for (const char* line : std::exchange(notes_, {})) log("KeyFilter", line);
  wait();
}

bool KeyFilter::takeNews() {
  const bool layout = events_.takeLayoutChange();
  const bool focus = events_.takeFocusLoss();
  const bool releases = !events_.takeReleases().empty();
  if (layout) refreshLayout();
  if (focus) followFocus();
  if (releases) synthetic_.followReleases();
  return layout || focus || releases;
}

// Whoever hears of the move may count on the keys being held.
void KeyFilter::followFocus() {
  if (!grabs_.followFocus()) return;
  events_.sync();
  judge_.reportFocusMove();
}

// The server tells of a new mapping also when the user merely goes from one keyboard to another.
void KeyFilter::refreshLayout() {
  std::string fingerprint = KeyboardLayout::fingerprint(keyboard_.connection);
  if (layout_ && fingerprint == fingerprint_) return;
  auto layout = KeyboardLayout::read(keyboard_.connection);
  if (!layout) {
    note("The server does not tell its keyboard mapping");
    return;
  }
  layout_ = std::move(layout);
  fingerprint_ = std::move(fingerprint);
  translator_.reset();
  grabs_.setKeys(*layout_, grabbedTrigger_);
  holding_ = Holding::nothing;
  holdBy(control_.settings());
}

KeyFilter::Holding KeyFilter::wantedHolding(const TapSettings& settings) const {
  if (!layout_) return Holding::nothing;
  if (!kept_.empty()) return Holding::everything;
  if (settings.hasTimedOut) return Holding::trigger;
  if (!settings.isEnabled) return Holding::nothing;
  return settings.attention == KeyAttention::triggerOnly ? Holding::trigger : Holding::everything;
}

bool KeyFilter::holdBy(const TapSettings& settings) {
  const bool sameTrigger = settings.trigger == grabbedTrigger_;
  if (!sameTrigger && layout_) {
    grabbedTrigger_ = settings.trigger;
    triggerText_ = utf16Text(grabbedTrigger_);
    grabs_.setKeys(*layout_, grabbedTrigger_);
    holding_ = Holding::nothing;
  }
  const Holding wanted = wantedHolding(settings);
  if (wanted == holding_) return !sameTrigger;
  holding_ = wanted;
  if (wanted == Holding::nothing) grabs_.holdNothing();
  if (wanted == Holding::trigger) grabs_.holdTrigger();
  if (wanted == Holding::everything) grabs_.holdEverything();
  return true;
}

void KeyFilter::handle(const TypedKey& key) {
  if (whole_.isTaken()) {
    keepUnlessModifier(key);
    return;
  }
  if (passesUnjudged(key)) {
    answer(KeyVerdict::pass);
    return;
  }
  const TapSettings settings = control_.settings();
  if (!kept_.empty() || (settings.isEnabled && settings.attention == KeyAttention::holdBack)) {
    keep(key);
    answer(KeyVerdict::swallow);
    whole_.noteKept();
  } else {
    const KeyVerdict verdict = decide(key);
    holdBy(control_.settings());
    answerJudged(verdict);
  }
}

// What is held next, and where, has to be settled before: the next key comes right behind the answer.
void KeyFilter::answer(KeyVerdict verdict) {
  followFocus();
  verdict == KeyVerdict::pass ? keyboard_.replayHeldKey() : keyboard_.swallowHeldKey();
  xcb_flush(keyboard_.connection);
}

// The server has sent the key on when it answers what was asked behind it.
void KeyFilter::answerJudged(KeyVerdict verdict) {
  answer(verdict);
  events_.sync();
  judge_.reportDeparture();
  grabs_.holdTriggerAtFocus();
}

// What a modifier, a lock or a group switch does is done before the key is held: typing it again later would
// do it twice.
bool KeyFilter::passesUnjudged(const TypedKey& key) const {
  if (!layout_) return true;
  const xkb_keysym_t symbol = layout_->symbol(key);
  return symbol == XKB_KEY_NoSymbol || isModifierSymbol(symbol) || isMediaSymbol(symbol);
}

void KeyFilter::keep(const TypedKey& key) {
  if (kept_.empty()) keptSince_ = Clock::now();
  kept_.push_back(key);
  holdBy(control_.settings());
}

void KeyFilter::keepUnlessModifier(const TypedKey& key) {
  if (!layout_ || !isModifierSymbol(layout_->symbol(key))) keep(key);
}

KeyVerdict KeyFilter::decide(const TypedKey& key) {
  const TapSettings settings = control_.settings();
  if ((!settings.isEnabled && !settings.hasTimedOut) || !layout_) return KeyVerdict::pass;
  const bool onlyTrigger = settings.hasTimedOut || settings.attention == KeyAttention::triggerOnly;
  // The keys before the trigger were not seen, so a sequence that they began is unknown.
  if (onlyTrigger) translator_.reset();
  const auto event = translator_.translate(*layout_, key);
  if (!event) return KeyVerdict::pass;
  if (onlyTrigger && (event->text != triggerText_ || (event->flags & keyflag::chord) != 0)) {
    return KeyVerdict::pass;
  }
  return ask(*event);
}

KeyVerdict KeyFilter::ask(const KeyEvent& event) {
  const auto verdict = judge_.ask(event);
  if (!verdict) timeOut();
  return verdict.value_or(KeyVerdict::pass);
}

// One more trigger waits for the main thread, which hears of the time-out before it is asked about it: after
// a short hang the next shortcode works. A second time-out in a row lets go of the keyboard altogether.
void KeyFilter::timeOut() {
  note("A key was not answered in time and has been let by");
  control_.timeOut();
  judge_.reportTimeOut();
}

bool KeyFilter::settle() {
  const TapSettings settings = control_.settings();
  if (kept_.empty()) return holdBy(settings);
  if (!settings.isEnabled || settings.attention != KeyAttention::holdBack) {
    judgeFirstKept();
    return true;
  }
  if (!keptTooLong()) return false;
  control_.setEnabled(false);
  judge_.reportTimeOut();
  return true;
}

// The key stays in the queue until it has been typed, so that everything that comes meanwhile stands behind
// it.
void KeyFilter::judgeFirstKept() {
  watch_.working();
  watch_.sayAlive();
  const TypedKey key = kept_.front();
  if (decide(key) == KeyVerdict::pass && layout_) synthetic_.type(*layout_, key);
  judge_.reportDeparture();
  kept_.pop_front();
  if (kept_.empty() && whole_.isTaken()) {
    whole_.giveBack();
    synthetic_.takeIn();
  }
  keptSince_ = Clock::now();
  holdBy(control_.settings());
}

bool KeyFilter::keptTooLong() const {
  return Clock::now() - keptSince_ >= holdBackTime;
}

bool KeyFilter::carryOutPosts() {
  const std::vector<KeyPost> posts = control_.takePosts();
  if (!posts.empty()) watch_.working();
  for (const KeyPost& post : posts) {
    for (const KeyPress& press : post.presses) {
      typeChord(press);
      watch_.sayAlive();
    }
    post.made();
  }
  // Behind a flood of keys, which all come before the presses, they take their time.
  if (!posts.empty()) keptSince_ = Clock::now();
  return !posts.empty();
}

void KeyFilter::typeChord(const KeyPress& press) {
  if (!layout_) return;
  if (!press.character.empty()) return synthetic_.typeCharacter(*layout_, press.character);
  synthetic_.typeChord(*layout_, symbolOf(press.keyCode), modifiersOf(press.flags, layout_->bits()));
}

void KeyFilter::wait() {
  pollfd sources[] = {{xcb_get_file_descriptor(keyboard_.connection), POLLIN, 0},
                      {control_.wakeFd(), POLLIN, 0},
                      {watch_.descriptor(), POLLIN, 0}};
  int timeout = -1;
  if (!kept_.empty()) {
    const auto left = keptSince_ + holdBackTime - Clock::now();
    timeout = static_cast<int>(std::chrono::ceil<std::chrono::milliseconds>(left).count());
    if (timeout < 0) timeout = 0;
  }
  poll(sources, std::size(sources), timeout);
}

void KeyFilter::leave() {
  control_.setEnabled(false);
  while (!kept_.empty()) judgeFirstKept();
  carryOutPosts();
  synthetic_.returnModifiers();
  grabs_.holdNothing();
  events_.sync();
}

// What was kept or to be typed belongs before keys that have gone their way since.
KeyFilter::Loss KeyFilter::abandon() {
  control_.setEnabled(false);
  for (const KeyPost& post : control_.takePosts()) post.made();
  watch_.listen();
  return {watch_.hasLetGo(), kept_.size(), synthetic_.leftPressed()};
}

}  // namespace tessarin::x11
