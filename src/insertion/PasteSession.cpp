#include "insertion/PasteSession.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "base/Log.h"
#include "platform/KeyCodes.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

using std::chrono::milliseconds;

constexpr milliseconds timePerDeletion{20};
constexpr milliseconds deletionMargin{50};
constexpr milliseconds fromWriteToChord{50};
constexpr milliseconds shortestLoan{200};  ///< from the chord
/// Some applications read twice: to see whether there is something to paste, and to paste it.
constexpr milliseconds settlingOfRead{100};
/// An application that checks may be without the processor for a while between two looks.
constexpr milliseconds settlingOfChecks{500};
constexpr milliseconds settlingCheck{25};
/// Chromium puts what it has read into its address bar some tasks later, and keys that come before at once.
constexpr milliseconds settlingOfLikelyRead{300};
constexpr milliseconds longestPasteWait{2000};  ///< for the application to read the text, from the chord
/// As long the text stays where a page has yet to read it: Chromium's were seen to take more than two seconds
/// beside programs that read the whole disk. Keys need not wait so long, as the page gets them in order.
constexpr milliseconds longestLoanAfterReadAhead{5000};
/// For which an application that wakes and takes up the chord only then finds an empty text.
constexpr milliseconds longestNap{3000};
constexpr milliseconds fillingCheck{50};
/// The chord would paste what the user had copied, where the text is not there yet.
constexpr milliseconds writeCheck{20};

std::vector<KeyPress> pressesOf(PasteChord chord) {
  switch (chord) {
    case PasteChord::controlV:
      break;
    case PasteChord::controlShiftV:
      return {{keycode::v, keyflag::control | keyflag::shift}};
    case PasteChord::shiftInsert:
      return {{keycode::insert, keyflag::shift}};
    case PasteChord::registerPlus:
      return {{keycode::r, keyflag::control}, {keycode::o, keyflag::control}, {0, 0, "+"}};
  }
  return {{keycode::v, keyflag::control}};
}

}  // namespace

PasteSession::PasteSession(Tools tools, Job job, TextInsertion::Completion done)
    : tools_(std::move(tools)), job_(std::move(job)), done_(std::move(done)) {}

std::vector<KeyPress> PasteSession::backspaces(std::int64_t count) {
  return std::vector<KeyPress>(static_cast<std::size_t>(count), {keycode::deleteBackward, 0});
}

void PasteSession::startBehind(std::shared_ptr<PasteSession> previous) {
  previous_ = std::move(previous);
  if (previous_) previous_->isHandedOver_ = true;
  if (job_.deleteCount > 0) {
    post(backspaces(job_.deleteCount), &PasteSession::deletionsArePosted);
  } else {
    deletionsArePosted();
  }
  saveContents();
}

void PasteSession::deletionsArePosted() {
  after(timePerDeletion * job_.deleteCount + deletionMargin, &PasteSession::deletionsAreDone);
}

void PasteSession::deletionsAreDone() {
  areDeletionsDone_ = true;
  writeWhenPossible();
}

void PasteSession::saveContents() {
  areAllAsked_ = false;
  for (PasteboardLoan* loan : tools_.loans) {
    loan->save([weak = weak_from_this()] {
      if (const auto self = weak.lock()) self->writeWhenPossible();
    });
  }
  areAllAsked_ = true;
  writeWhenPossible();
}

void PasteSession::writeWhenPossible() {
  if (isWritten_ || !areDeletionsDone_ || !areAllAsked_) return;
  if (!std::ranges::all_of(tools_.loans, &PasteboardLoan::isReady)) return;
  if (previous_ && previous_->isOwedARead()) return after(settlingCheck, &PasteSession::writeWhenPossible);
  previous_ = nullptr;
  if (!std::ranges::all_of(tools_.loans, &PasteboardLoan::isCurrent) && savesLeft_-- > 0) {
    saveContents();
    return;
  }
  for (PasteboardLoan* loan : tools_.loans) loan->write(job_.text);
  isWritten_ = true;
  after(fromWriteToChord, &PasteSession::pasteWhenWritten);
}

void PasteSession::pasteWhenWritten() {
  if (std::ranges::all_of(tools_.loans, [](PasteboardLoan* loan) { return loan->isInPlace(); })) {
    postPasteKeystroke();
  } else if (writeChecksLeft_-- > 0) {
    after(writeCheck, &PasteSession::pasteWhenWritten);
  } else {
    isShortestLoanOver_ = true;
    stopWaiting();
  }
}

void PasteSession::postPasteKeystroke() {
  for (PasteboardLoan* loan : tools_.loans) {
    loan->onRead([weak = weak_from_this()] {
      if (const auto self = weak.lock()) self->textWasRead();
    });
  }
  isChordPosted_ = true;
  requestsBeforeChord_ = textRequestCount();
  post(pressesOf(job_.chord), &PasteSession::chordIsPosted);
}

void PasteSession::chordIsPosted() {
  chordTime_ = tools_.queue.now();
  after(shortestLoan, &PasteSession::shortestLoanIsOver);
  after(longestPasteWait, &PasteSession::giveUpUnlessRead);
}

void PasteSession::shortestLoanIsOver() {
  isShortestLoanOver_ = true;
  // An application that watches the pasteboard has read before the chord, and may or may not read again: the
  // keys held back need not wait for that, only the user's contents do.
  const bool isRead = std::ranges::any_of(tools_.loans, &PasteboardLoan::hasBeenRead);
  if (isRead && reads_ == 0) answer(InsertionOutcome::inserted);
  restoreWhenAllowed();
}

// What came onto the pasteboard before an application that has read ahead reads again would be pasted instead
// of the text.
void PasteSession::textWasRead() {
  ++reads_;
  if (!isRead(ReadManner::likely) && !isRead(ReadManner::ahead)) return textWasPasted();
  after(std::clamp(sinceChord(), settlingOfLikelyRead, longestPasteWait), &PasteSession::likelyReadIsOver);
  after(longestPasteWait, &PasteSession::keysHaveWaited);
}

// The keys need not wait for that any longer, only the user's contents do.
void PasteSession::likelyReadIsOver() {
  if (reads_ == 1 && isRead(ReadManner::likely)) answer(InsertionOutcome::inserted);
}

void PasteSession::keysHaveWaited() {
  if (reads_ != 1) return;
  if (!isOwedARead()) return textWasPasted();
  answer(InsertionOutcome::inserted);
  after(longestLoanAfterReadAhead - longestPasteWait, &PasteSession::readAheadIsOver);
}

void PasteSession::readAheadIsOver() {
  if (reads_ == 1) textWasPasted();
}

bool PasteSession::isOwedARead() const {
  return reads_ > 0 && !isReadOrGivenUp_ && (isRead(ReadManner::ahead) || isRead(ReadManner::checking));
}

void PasteSession::textWasPasted() {
  timeToRead_ = sinceChord();
  settlesUntil_ = tools_.queue.now() + longestPasteWait;
  if (!isRead(ReadManner::checking) && !isRead(ReadManner::checked)) answer(InsertionOutcome::inserted);
  quietSince_ = tools_.queue.now();
  if (!std::exchange(isSettling_, true)) lookWhetherSettled();
}

// An application that checks may take as long for that as it took to come so far.
milliseconds PasteSession::timeToSettle() const {
  if (!isRead(ReadManner::checking)) return settlingOfRead;
  return std::clamp(timeToRead_, settlingOfChecks, longestPasteWait);
}

milliseconds PasteSession::sinceChord() const {
  return std::chrono::duration_cast<milliseconds>(tools_.queue.now() - chordTime_);
}

bool PasteSession::isRead(ReadManner manner) const {
  return std::ranges::any_of(tools_.loans,
                             [&](const PasteboardLoan* loan) { return loan->readManner() == manner; });
}

std::int64_t PasteSession::requestCount() const {
  std::int64_t count = 0;
  for (const PasteboardLoan* loan : tools_.loans) count += loan->requestCount();
  return count;
}

void PasteSession::lookWhetherSettled() {
  const auto now = tools_.queue.now();
  const std::int64_t count = requestCount();
  if (count != lastRequestCount_) quietSince_ = now;
  lastRequestCount_ = count;
  const auto settled = std::min(quietSince_ + timeToSettle(), settlesUntil_);
  if (now < settled) {
    const auto left = std::chrono::ceil<milliseconds>(settled - now);
    return after(std::min(left, settlingCheck), &PasteSession::lookWhetherSettled);
  }
  isSettling_ = false;
  isReadOrGivenUp_ = true;
  answer(InsertionOutcome::inserted);
  restoreWhenAllowed();
}

void PasteSession::giveUpUnlessRead() {
  if (reads_ == 0) stopWaiting();
}

void PasteSession::stopWaiting() {
  if (isReadOrGivenUp_) return;
  if (isTypedBack()) return typeBack();
  isReadOrGivenUp_ = true;
  restoreWhenAllowed();
  answerFailure();
}

// Not where the user has gone elsewhere. Nor where anybody has asked for the text since the chord: some
// programs read by another connection than the one that has the focus, and the shortcode would stand behind
// the text.
bool PasteSession::isTypedBack() const {
  return done_ && !job_.typed.empty() && (!isChordPosted_ || textRequestCount() == requestsBeforeChord_);
}

// Typing the text itself would take key codes of other symbols, which programs learn of late, and a line
// break would run what stands in a shell.
void PasteSession::typeBack() {
  for (PasteboardLoan* loan : tools_.loans) {
    loan->onRead(nullptr);
    if (loan->isCurrent()) loan->write("");
  }
  std::vector<KeyPress> presses;
  for (std::string left = job_.typed; !left.empty();) {
    presses.push_back({0, 0, text::firstCharacter(left)});
    left.erase(0, presses.back().character.size());
  }
  post(presses, &PasteSession::shortcodeIsTyped);
}

void PasteSession::shortcodeIsTyped() {
  log("PasteHelper", "Nobody took the text: the shortcode has been typed again");
  isReadOrGivenUp_ = true;
  after(longestNap, &PasteSession::restoreWhenAllowed);
  answer(InsertionOutcome::unchanged);
}

std::int64_t PasteSession::textRequestCount() const {
  std::int64_t count = 0;
  for (const PasteboardLoan* loan : tools_.loans) count += loan->textRequestCount();
  return count;
}

void PasteSession::restoreWhenAllowed() {
  if (!isShortestLoanOver_ || !isReadOrGivenUp_ || isHandedOver_) return;
  if (std::ranges::any_of(tools_.restored, &PasteboardLoan::isStillFilling)) {
    after(fillingCheck, &PasteSession::restoreWhenAllowed);
    return;
  }
  for (PasteboardLoan* loan : tools_.restored) loan->restore();
}

void PasteSession::answerFailure() {
  const bool isErased = job_.deleteCount > 0 || !job_.typed.empty();
  answer(isErased ? InsertionOutcome::erasedOnly : InsertionOutcome::unchanged);
}

void PasteSession::answer(InsertionOutcome outcome) {
  if (const auto done = std::exchange(done_, nullptr)) done(outcome);
}

void PasteSession::post(const std::vector<KeyPress>& presses, void (PasteSession::*next)()) {
  tools_.keyPoster.post(presses, [weak = weak_from_this(), next] {
    if (const auto self = weak.lock()) ((*self).*next)();
  });
}

void PasteSession::after(milliseconds delay, void (PasteSession::*step)()) {
  tools_.queue.after(delay, [weak = weak_from_this(), step] {
    if (const auto self = weak.lock()) ((*self).*step)();
  });
}

}  // namespace tessarin
