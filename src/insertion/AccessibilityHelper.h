#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Accessibility.h"
#include "platform/TextInsertion.h"
#include "platform/UserDefaults.h"
#include "platform/Workspace.h"

namespace tessarin {

/// Writes straight into the focused text element, touching neither keyboard nor pasteboard. Refuses, so that
/// the text is pasted, where that is not allowed or not dependable. Main thread.
class AccessibilityHelper {
 public:
  /// All must outlive the helper.
  AccessibilityHelper(Accessibility& accessibility, Workspace& workspace, const UserDefaults& defaults)
      : accessibility_(accessibility), workspace_(workspace), defaults_(defaults) {}

  /// Replaces the `count` characters before the caret. `typed` is what they must be, so that nothing else is
  /// erased; letters that the application has not processed yet are waited for, 60 ms at most. An empty
  /// `typed` is not looked for. An element that says that nothing at all stands there does not tell of its
  /// text and counts as unreadable. The whole takes 120 ms at most.
  InsertionOutcome insertText(const std::string& typed, std::int64_t count, const std::string& text);
  /// Whether `typed`, of `count` characters, stands right before the caret of an element that accepts direct
  /// insertion. None where that cannot be told.
  std::optional<bool> stands(const std::string& typed, std::int64_t count);

  enum class Arrival {
    arrived,
    notYet,
    busy,    ///< the application does not answer just now
    unknown  ///< it cannot be told
  };
  /// Whether the text stands right before the caret by now, and the caret not where it was without the text:
  /// the same text may have stood there before.
  Arrival arrival(const std::string& text, std::optional<std::int64_t> caretWithout);
  /// Where the caret will be once `typed`, which stands before it, has been erased. None where that cannot be
  /// told.
  std::optional<std::int64_t> caretWithout(const std::string& typed);

  /// The focused element, when it accepts direct insertion.
  std::optional<ElementRef> focusedTextElement();
  /// Whether the element is part of a web page: itself, or by one of its five nearest ancestors.
  bool isWebArea(const ElementRef& element);
  /// Whether the element or one of its ancestors, `depth` elements in all, is a web area.
  bool hasWebAreaAncestor(const ElementRef& element, int depth);
  /// Whether texts are always pasted into the frontmost application.
  bool isPasteFallbackApp();
  /// What pastes where the focus is: in a terminal, be it one inside another application, or elsewhere.
  PasteChord pasteChord();
  /// Whether a paste into the frontmost application shows in who reads the pasteboard.
  bool isPasteObservable();

 private:
  std::optional<ElementRef> focusedElement();
  bool hasRole(const ElementRef& element, std::string_view name);
  std::optional<std::int64_t> caret(const ElementRef& element);
  InsertionOutcome replaceBefore(const ElementRef& element, std::int64_t location, std::int64_t count,
                                 const std::string& text);
  struct Place {
    std::int64_t caret = 0;
    std::string before;          ///< as many characters as were asked for, or all there are
    bool isBehindTyped = false;  ///< else something different stands before it
  };
  std::optional<Place> place(const ElementRef& element, const std::string& typed, std::int64_t count);
  /// The same; none also where nothing at all stands before the caret.
  std::optional<Place> lookFor(const ElementRef& element, const std::string& typed, std::int64_t count);
  /// Waits until `typed` stands before the caret, 60 ms at most.
  std::optional<Place> awaitTyped(const ElementRef& element, const std::string& typed, std::int64_t count);

  Accessibility& accessibility_;
  Workspace& workspace_;
  const UserDefaults& defaults_;
};

}  // namespace tessarin
