#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "insertion/PasteboardLoan.h"
#include "platform/KeyPoster.h"
#include "platform/MainQueue.h"
#include "platform/TextInsertion.h"
#include "platform/Workspace.h"

namespace tessarin {

/// One paste, from its backspaces until the user's contents are back. Every step is scheduled
/// on the main queue with a weak owner: letting go of the session ends it where it stands. Main thread.
class PasteSession : public std::enable_shared_from_this<PasteSession> {
 public:
  struct Job {
    std::int64_t deleteCount = 0;
    std::string text;
    PasteChord chord = PasteChord::controlV;
    /// The shortcode that the text takes the place of, erased by the deletions or before: typed again where
    /// nobody takes the text. May be empty.
    std::string typed = {};
  };
  /// Everything that the session works with; must outlive it. `loans` are written, `restored` are all that
  /// are put back at the end.
  struct Tools {
    KeyPoster& keyPoster;
    MainQueue& queue;
    std::vector<PasteboardLoan*> loans;
    std::vector<PasteboardLoan*> restored;
  };

  PasteSession(Tools tools, Job job, TextInsertion::Completion done);

  static std::vector<KeyPress> backspaces(std::int64_t count);

  /// A page may have yet to read the text of the session before, if there was one: this one's is written
  /// behind that, and the user's contents are left to this one.
  void startBehind(std::shared_ptr<PasteSession> previous);
  /// Answers, unless that has been done, that the text did not get there.
  void answerFailure();
  bool isChordPosted() const { return isChordPosted_; }

 private:
  void deletionsArePosted();
  void deletionsAreDone();
  void saveContents();
  void writeWhenPossible();
  void pasteWhenWritten();
  void postPasteKeystroke();
  void chordIsPosted();
  void shortestLoanIsOver();
  void textWasRead();
  void likelyReadIsOver();
  void keysHaveWaited();
  void readAheadIsOver();
  bool isOwedARead() const;
  void textWasPasted();
  bool isRead(ReadManner manner) const;
  std::int64_t requestCount() const;
  std::chrono::milliseconds timeToSettle() const;
  std::chrono::milliseconds sinceChord() const;
  void lookWhetherSettled();
  void giveUpUnlessRead();
  void stopWaiting();
  bool isTypedBack() const;
  void typeBack();
  void shortcodeIsTyped();
  std::int64_t textRequestCount() const;
  void restoreWhenAllowed();
  void answer(InsertionOutcome outcome);
  void post(const std::vector<KeyPress>& presses, void (PasteSession::*next)());
  void after(std::chrono::milliseconds delay, void (PasteSession::*step)());

  Tools tools_;
  Job job_;
  std::shared_ptr<PasteSession> previous_;
  bool isHandedOver_ = false;  ///< to the next session
  TextInsertion::Completion done_;
  int savesLeft_ = 3;  ///< how often contents are saved again because somebody copied meanwhile
  bool areDeletionsDone_ = false;
  bool areAllAsked_ = false;
  bool isWritten_ = false;
  int writeChecksLeft_ = 100;
  bool isChordPosted_ = false;
  std::int64_t requestsBeforeChord_ = 0;
  bool isShortestLoanOver_ = false;
  std::chrono::steady_clock::time_point chordTime_;
  int reads_ = 0;  ///< since the chord
  std::int64_t lastRequestCount_ = 0;
  std::chrono::milliseconds timeToRead_{0};           ///< from the chord
  std::chrono::steady_clock::time_point quietSince_;  ///< when a request was last noticed
  std::chrono::steady_clock::time_point settlesUntil_;
  bool isSettling_ = false;
  bool isReadOrGivenUp_ = false;
};

}  // namespace tessarin
