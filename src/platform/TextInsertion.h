#pragma once

#include <cstdint>
#include <functional>
#include <string>

namespace tessarin {

struct Replacement {
  std::int64_t deleteCount =
      0;             ///< characters (grapheme clusters) of the shortcode that stand in the document
  std::string text;  ///< the chosen text before its template variables are filled in
  bool includeTriggerChar = false;  ///< one character more is to be erased: the trigger that confirmed
  std::string typed;  ///< the shortcode as typed, so that it can be looked for before it is erased
  /// The shortcode is to be seen before the caret before anything is erased: the user may have moved it.
  bool caretMayHaveMoved = false;
};

enum class InsertionOutcome {
  inserted,
  unchanged,   ///< the document is as it was
  differs,     ///< as unchanged, and something else than the shortcode stands before the caret
  erasedOnly,  ///< the shortcode was removed, the text did not get there
};

/// Puts a text in the place of the typed shortcode in the focused document. Main thread.
class TextInsertion {
 public:
  using Completion = std::function<void(InsertionOutcome)>;

  virtual ~TextInsertion() = default;

  /// Calls `done` exactly once, possibly before it returns. A replacement that is asked for while another is
  /// under way waits for its turn.
  virtual void replace(const Replacement& replacement, Completion done) = 0;
  /// The user has gone elsewhere: what is under way and only waits for the application is answered now, so
  /// that keys typed there need not wait with it. What has been sent to the application stays sent.
  virtual void stopWaiting() = 0;
};

}  // namespace tessarin
