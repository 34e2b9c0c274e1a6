#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/Accessibility.h"
#include "platform/atspi/RemoteObject.h"
#include "platform/atspi/TextUnit.h"

namespace tessarin::atspi {

/// The text of an object of another application. Positions are the application's own; lengths of TextRanges
/// are grapheme clusters, counted in a bounded stretch of text that is fetched from before the range's end.
class RemoteText : public RemoteObject {
 public:
  RemoteText(CallChannel& channel, ObjectReference object, Toolkit toolkit);

  /// The selection, or the caret as an empty one. A selection's length is in the application's units.
  std::optional<TextRange> selectedRange();
  std::optional<std::string> string(const TextRange& range);
  /// The caret as it would be at the range's end, in pixels; relative to the window if that is the toolkit's
  /// way.
  std::optional<Rect> caretBounds(const TextRange& range);
  /// `erasedOnly` also when it is not certain that the old text stands as it was.
  AccessibilityStatus replace(const TextRange& range, const std::string& text);
  const Toolkit& toolkit() const { return toolkit_; }

 private:
  /// The clusters of a range: where they start, and what they are.
  struct Stretch {
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::string text;
  };

  std::optional<Stretch> stretch(const TextRange& range);
  std::optional<std::string> text(std::int64_t start, std::int64_t end);
  MessagePtr textRequest(std::int64_t start, std::int64_t end) const;
  MessagePtr extentsRequest(std::int64_t position) const;
  /// Where the caret stands behind a letter: no rectangle is to be had where there is no character.
  std::optional<Rect> behind(std::optional<Rect> letter, const std::optional<std::string>& text);
  AccessibilityStatus erase(const Stretch& stretch);
  AccessibilityStatus insert(std::int64_t position, const std::string& text);
  void placeCaret(std::int64_t position);
  Answer carryOut(MessagePtr change);
  bool stillHolds(const Stretch& stretch);

  const Toolkit toolkit_;
};

}  // namespace tessarin::atspi
