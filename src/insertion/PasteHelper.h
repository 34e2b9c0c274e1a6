#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "insertion/PasteSession.h"
#include "insertion/PasteboardLoan.h"
#include "platform/KeyPoster.h"
#include "platform/MainQueue.h"
#include "platform/Pasteboard.h"
#include "platform/TextInsertion.h"

namespace tessarin {

/// Inserts a text by erasing with backspaces and pasting, and gives the user's pasteboard contents back
/// afterwards. Works wherever keys and the paste chord do. Main thread.
///
/// With n characters to erase: deletions at once; 0.02n + 0.05 s after they were made, and once the contents
/// are saved, the text goes onto the pasteboard; the paste chord 0.05 s later; the contents come back 0.2 s
/// after the chord was made, and 0.1 s after the application has last read the text or two seconds after the
/// chord; five where a page of Chromium's has yet to read it, behind which the next text then waits.
class PasteHelper {
 public:
  /// All must outlive the helper. `primary` is what terminals paste from.
  PasteHelper(Pasteboard& general, Pasteboard& primary, KeyPoster& keyPoster, MainQueue& queue);
  /// As `finish`.
  ~PasteHelper();
  PasteHelper(const PasteHelper&) = delete;
  PasteHelper& operator=(const PasteHelper&) = delete;

  /// One at a time: not before the last `done`. Contents of that paste which have not come back yet then stay
  /// away until this one is over. `done` says inserted as soon as the application has read the text (0.2 s
  /// after the chord if that was before it); of an empty text, when the deletions were made. Otherwise, two
  /// seconds after the chord, the shortcode is typed again, an empty text lies on the pasteboard for three
  /// seconds more, and `done` says unchanged; where it is not typed again, `done` says erasedOnly (unchanged
  /// when there was nothing to erase).
  void pasteText(const PasteSession::Job& job, TextInsertion::Completion done);

  /// Answers a paste under way as one that did not get there. When its chord has been posted, the text stays
  /// on the pasteboard as long as it would have; otherwise it is broken off, as it would be pasted elsewhere.
  void stopWaiting();

  /// The general pasteboard's plain text as the user knows it, our own being left out.
  std::optional<std::string> userText() { return general_.userText(); }

  /// Gives back at once what has not come back yet, and breaks off a paste under way.
  void finish();

 private:
  void erase(std::int64_t count, TextInsertion::Completion done);

  KeyPoster& keyPoster_;
  MainQueue& queue_;
  PasteboardLoan general_;
  PasteboardLoan primary_;
  std::shared_ptr<PasteSession> session_;
};

}  // namespace tessarin
