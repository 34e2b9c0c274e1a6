#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/Accessibility.h"
#include "platform/atspi/RemoteObject.h"
#include "platform/atspi/TextUnit.h"

namespace tessarin::atspi {

/// The text of an object of another application. Positions are the application's own; lengths of TextRanges
/// are grapheme clusters, counted in a bounded stretch of text that is fetched from before the range's end.
class RemoteText : public RemoteObject {
 public:
  RemoteText(CallChannel& channel, ObjectReference object, Toolkit toolkit);

  /// The clusters of a range: where they start, and what they are.
  struct Stretch {
    std::int64_t start = 0;
    std::int64_t end = 0;
    std::string text;
  };

  /// The selection, or the caret as an empty one. A selection's length is in the application's units.
  std::optional<TextRange> selectedRange();
  /// The clusters of a range, as they stand there now.
  std::optional<Stretch> stretch(const TextRange& range);
  /// The end of a range, asked about at one go.
  struct CaretPlace {
    /// The caret as it would be there, in pixels; relative to the window if that is the toolkit's way.
    std::optional<Rect> bounds;
    /// The range's clusters and the element's role; none for an empty range.
    std::optional<std::string> before;
    std::optional<std::uint32_t> role;
  };
  CaretPlace caretPlace(const TextRange& range);
  /// What tells whether and where one may write, asked at one go: an application that begins to draw between
  /// two answers lets the second one wait for a whole frame.
  struct Glance {
    std::optional<std::uint32_t> role;
    std::optional<std::uint64_t> states;
    bool isEditableText = false;
    std::optional<TextRange> selectedRange;
    /// What stands before the place where the caret was expected, enough for most shortcodes.
    std::optional<Stretch> before;
  };
  Glance glance(std::optional<std::int64_t> expectedCaret);
  /// The clusters of a range that ends where the text that was read does, if it has them all.
  std::optional<Stretch> stretchIn(const Stretch& read, const TextRange& range) const;

  /// Replaces what was read, and leaves the caret behind the new text. `erasedOnly` also when it is not
  /// certain that the old text stands as it was, and where the new text was taken back for the caret's sake.
  AccessibilityStatus replace(const Stretch& old, const std::string& text);
  /// With what has been seen of the application since.
  const Toolkit& toolkit() const { return toolkit_; }

 private:
  /// Of the answers to `CaretOffset` and `GetNSelections`.
  std::optional<TextRange> rangeOf(DBusMessage* caret, DBusMessage* selections);
  std::optional<std::string> text(std::int64_t start, std::int64_t end);
  std::optional<std::string> textIn(DBusMessage* reply, std::int64_t units) const;
  /// The last clusters of what was fetched from `start` on; none where the first may be part of a longer one.
  static std::optional<std::string> lastClusters(const std::string& fetched, std::int64_t start,
                                                 std::int64_t clusters);
  MessagePtr textRequest(std::int64_t start, std::int64_t end) const;
  CaretPlace placeBehind(std::int64_t position);
  CaretPlace placeBehind(const TextRange& range);
  std::optional<Rect> boundsOf(DBusMessage* at, DBusMessage* before, DBusMessage* letters);
  MessagePtr extentsRequest(std::int64_t position) const;
  /// Where the caret stands behind a letter: no rectangle is to be had where there is no character.
  std::optional<Rect> behind(std::optional<Rect> letter, const std::optional<std::string>& text);
  MessagePtr erasure(const Stretch& stretch) const;
  MessagePtr insertion(const Stretch& fresh) const;
  MessagePtr caretChange(std::int64_t position) const;
  Stretch stretchOf(std::int64_t position, const std::string& text) const;
  AccessibilityStatus erase(const Stretch& old);
  AccessibilityStatus insert(std::int64_t position, const std::string& text);
  AccessibilityStatus eraseAndInsert(const Stretch& old, const std::string& text);
  bool takesBack(const Stretch& old, const Stretch& fresh);
  /// Inserting, and last what tells where the caret is then.
  void appendInsertion(std::vector<MessagePtr>& changes, const Stretch& fresh) const;
  bool isInserted(const Answer& answer, const Stretch& fresh);
  AccessibilityStatus placeCaretBehind(const Stretch& fresh, const Answer& answer);
  bool isCaretPutBehind(const Stretch& fresh);
  /// Undoes what was sent along with an insertion that came to nothing.
  void returnCaret(std::int64_t position);
  std::vector<Answer> carryOut(std::vector<MessagePtr> changes);
  bool stillHolds(const Stretch& stretch);

  Toolkit toolkit_;
};

}  // namespace tessarin::atspi
