#pragma once

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "base/Geometry.h"
#include "base/Subscription.h"
#include "platform/PromptManner.h"

namespace tessarin {

/// An element of some application's interface; only its backend knows what is inside.
class AccessibilityElement {
 public:
  virtual ~AccessibilityElement() = default;
};
using ElementRef = std::shared_ptr<const AccessibilityElement>;

/// A stretch of an element's text. `location` is a position as the element's toolkit counts it and is only to
/// be handed back, with a smaller number taken off it or not; `length` counts grapheme clusters back from the
/// end, the end being location + length. So the n characters before a caret at p are {p - n, n}, whatever the
/// toolkit counts in.
struct TextRange {
  std::int64_t location = 0;
  std::int64_t length = 0;
  bool operator==(const TextRange&) const = default;
  /// The characters before a caret, as many as there can be.
  static constexpr TextRange before(std::int64_t caret, std::int64_t count) {
    const std::int64_t start = std::max<std::int64_t>(caret - count, 0);
    return {start, caret - start};
  }
};

/// Points, sizes and rectangles are in points, accessibility coordinates.
using AttributeValue = std::variant<bool, std::string, TextRange, Point, Size, Rect, ElementRef>;

enum class AccessibilityStatus {
  success,
  failure,     ///< nothing was changed
  erasedOnly,  ///< the old text was removed, the new text was not written
};

/// Names of the attributes that backends answer.
namespace attribute {
inline constexpr std::string_view focusedApplication =
    "AXFocusedApplication";                                               ///< of the system-wide element
inline constexpr std::string_view focusedElement = "AXFocusedUIElement";  ///< of an application
inline constexpr std::string_view focusedWindow = "AXFocusedWindow";      ///< of an application
inline constexpr std::string_view role = "AXRole";                        ///< a role name, below
inline constexpr std::string_view parent = "AXParent";
inline constexpr std::string_view value = "AXValue";  ///< readable when the element is text that the user
                                                      ///< may edit, and tells where its caret is, and no
                                                      ///< terminal; read without fetching the text (gives "")
inline constexpr std::string_view selectedTextRange =
    "AXSelectedTextRange";  ///< caret or selection; writable
/// Writable only: replaces the range last written to selectedTextRange. Some texts take it from nobody.
inline constexpr std::string_view selectedText = "AXSelectedText";
inline constexpr std::string_view stringForRange = "AXStringForRange";  ///< parameterized by a TextRange
/// Parameterized by a TextRange, whose end alone counts. What the two below are for the same range is read
/// along with it, so that they cost nothing then.
inline constexpr std::string_view boundsForRange = "AXBoundsForRange";
inline constexpr std::string_view isTerminal =
    "AXIsTerminal";  ///< parameterized by a TextRange; of the element
inline constexpr std::string_view position = "AXPosition";
inline constexpr std::string_view size = "AXSize";
}  // namespace attribute

namespace role {
inline constexpr std::string_view webArea = "AXWebArea";
inline constexpr std::string_view htmlTextArea = "AXHTMLTextArea";
inline constexpr std::string_view htmlTextInput = "AXHTMLTextInput";
inline constexpr std::string_view textArea = "AXTextArea";
inline constexpr std::string_view textField = "AXTextField";
inline constexpr std::string_view secureTextField = "AXSecureTextField";
inline constexpr std::string_view terminal = "AXTerminal";
inline constexpr std::string_view window = "AXWindow";
inline constexpr std::string_view unknown = "AXUnknown";
}  // namespace role

/// Reads and writes other applications' interfaces. Main thread. Every call is bounded (50 ms) and so is the
/// sum of the calls since `beginBudget`; beyond that they fail at once. An application that timed out is
/// passed over until it answers again.
class Accessibility {
 public:
  virtual ~Accessibility() = default;

  /// Whether the user trusts the program to judge keys and to write into other applications. Asked afresh
  /// every time.
  virtual bool isTrusted() = 0;
  /// Asks the user for that trust; does nothing when it is given already. A question that stands comes up
  /// again.
  virtual void prompt(PromptManner manner) = 0;

  virtual ElementRef systemWide() = 0;
  /// None when the element has no such attribute, does not answer, or has gone.
  virtual std::optional<AttributeValue> attribute(const ElementRef& element, std::string_view name) = 0;
  virtual std::optional<AttributeValue> parameterizedAttribute(const ElementRef& element,
                                                               std::string_view name,
                                                               const AttributeValue& parameter) = 0;
  virtual AccessibilityStatus setAttribute(const ElementRef& element, std::string_view name,
                                           const AttributeValue& value) = 0;

  /// The callback runs when the keyboard focus has moved to another element, also inside one application.
  [[nodiscard]] virtual Subscription onFocusMoved(std::function<void()> callback) = 0;

  /// Starts the account of one key: from now on all calls and pauses together take at most this long.
  virtual void beginBudget(std::chrono::milliseconds budget) = 0;
  /// Whether the element's application has been asked something that it has not answered yet; of
  /// `systemWide`, whether the focused element is being looked for.
  virtual bool isBusy(const ElementRef& element) = 0;
  /// Gives the application a moment to go on with its work. False when the budget does not allow it.
  virtual bool pause(std::chrono::milliseconds duration) = 0;
};

/// The attribute's value when it is there and of the type asked for.
template <class T>
std::optional<T> readAttribute(Accessibility& accessibility, const ElementRef& element,
                               std::string_view name) {
  if (const auto value = accessibility.attribute(element, name)) {
    if (const T* typed = std::get_if<T>(&*value)) return *typed;
  }
  return std::nullopt;
}

}  // namespace tessarin
