#include "insertion/PasteHelper.h"

#include <utility>
#include <vector>

#include "platform/KeyCodes.h"

namespace tessarin {

PasteHelper::PasteHelper(Pasteboard& general, Pasteboard& primary, KeyPoster& keyPoster, MainQueue& queue)
    : keyPoster_(keyPoster), queue_(queue), general_(general), primary_(primary) {}

PasteHelper::~PasteHelper() {
  finish();
}

void PasteHelper::pasteText(const PasteSession::Job& job, TextInsertion::Completion done) {
  if (job.text.empty()) {
    erase(job.deleteCount, std::move(done));
    return;
  }
  std::vector<PasteboardLoan*> loans{&general_};
  if (job.chord == PasteChord::shiftInsert) loans.push_back(&primary_);
  auto previous = std::exchange(session_, nullptr);
  session_ = std::make_shared<PasteSession>(
      PasteSession::Tools{keyPoster_, queue_, std::move(loans), {&general_, &primary_}}, job,
      std::move(done));
  session_->startBehind(std::move(previous));
}

void PasteHelper::erase(std::int64_t count, TextInsertion::Completion done) {
  if (count <= 0) return done(InsertionOutcome::inserted);
  keyPoster_.post(PasteSession::backspaces(count),
                  [done = std::move(done)] { done(InsertionOutcome::inserted); });
}

void PasteHelper::stopWaiting() {
  if (!session_) return;
  session_->isChordPosted() ? session_->answerFailure() : finish();
}

void PasteHelper::finish() {
  const auto session = std::exchange(session_, nullptr);
  general_.restore();
  primary_.restore();
  if (session) session->answerFailure();
}

}  // namespace tessarin
