#include "insertion/AccessibilityHelper.h"

#include <algorithm>
#include <chrono>

#include "input/Preferences.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

using std::chrono::milliseconds;

/// Leaves a margin within the 150 ms after which a key tap stops waiting for the confirming key's verdict.
constexpr milliseconds insertionBudget{120};
/// Editors were seen to lag behind fast typing by up to 40 ms.
constexpr milliseconds longestWait{60};
constexpr milliseconds waitStep{2};
/// For one look at an application that was seen to answer.
constexpr milliseconds arrivalBudget{60};
constexpr int ancestorsExamined = 5;

}  // namespace

InsertionOutcome AccessibilityHelper::insertText(const std::string& typed, std::int64_t count,
                                                 const std::string& text) {
  accessibility_.beginBudget(insertionBudget);
  const auto element = focusedTextElement();
  if (!element) return InsertionOutcome::unchanged;
  if (count <= 0 || typed.empty()) {
    const auto location = caret(*element);
    return location ? replaceBefore(*element, *location, count, text) : InsertionOutcome::unchanged;
  }
  const auto place = awaitTyped(*element, typed, count);
  if (!place) return InsertionOutcome::unchanged;
  return place->isBehindTyped ? replaceBefore(*element, place->caret, count, text)
                              : InsertionOutcome::differs;
}

InsertionOutcome AccessibilityHelper::replaceBefore(const ElementRef& element, std::int64_t location,
                                                    std::int64_t count, const std::string& text) {
  if (accessibility_.setAttribute(element, attribute::selectedTextRange,
                                  TextRange::before(location, count)) != AccessibilityStatus::success) {
    return InsertionOutcome::unchanged;
  }
  switch (accessibility_.setAttribute(element, attribute::selectedText, text)) {
    case AccessibilityStatus::success:
      return InsertionOutcome::inserted;
    case AccessibilityStatus::erasedOnly:
      return InsertionOutcome::erasedOnly;
    case AccessibilityStatus::failure:
      break;
  }
  return InsertionOutcome::unchanged;
}

AccessibilityHelper::Arrival AccessibilityHelper::arrival(const std::string& text,
                                                          std::optional<std::int64_t> caretWithout) {
  accessibility_.beginBudget(arrivalBudget);
  const auto element = focusedElement();
  if (!element) return Arrival::unknown;
  const bool isReadable = accessibility_.attribute(*element, attribute::value).has_value();
  const auto count = static_cast<std::int64_t>(text::characterCount(text));
  const auto found = isReadable ? place(*element, text, count) : std::nullopt;
  if (!found) return accessibility_.isBusy(*element) ? Arrival::busy : Arrival::unknown;
  return found->isBehindTyped && found->caret != caretWithout ? Arrival::arrived : Arrival::notYet;
}

// Toolkits agree on the length of what lies in the basic plane, each code point being one; other shortcodes
// are rare.
std::optional<std::int64_t> AccessibilityHelper::caretWithout(const std::string& typed) {
  accessibility_.beginBudget(arrivalBudget);
  const auto element = focusedElement();
  const auto now = element ? caret(*element) : std::nullopt;
  const std::u16string units = text::toUtf16(typed);
  const bool isPlain = std::ranges::none_of(units, [](char16_t unit) { return (unit & 0xF800) == 0xD800; });
  if (!now || !isPlain) return std::nullopt;
  return *now - static_cast<std::int64_t>(units.size());
}

std::optional<bool> AccessibilityHelper::stands(const std::string& typed, std::int64_t count) {
  accessibility_.beginBudget(arrivalBudget);
  const auto element = focusedTextElement();
  const auto place = element ? lookFor(*element, typed, count) : std::nullopt;
  return place ? std::optional(place->isBehindTyped) : std::nullopt;
}

std::optional<ElementRef> AccessibilityHelper::focusedTextElement() {
  auto element = focusedElement();
  if (!element || isWebArea(*element) || isPasteFallbackApp()) return std::nullopt;
  if (!accessibility_.attribute(*element, attribute::value)) return std::nullopt;
  return element;
}

std::optional<ElementRef> AccessibilityHelper::focusedElement() {
  if (!accessibility_.isTrusted()) return std::nullopt;
  const auto application =
      readAttribute<ElementRef>(accessibility_, accessibility_.systemWide(), attribute::focusedApplication);
  if (!application) return std::nullopt;
  return readAttribute<ElementRef>(accessibility_, *application, attribute::focusedElement);
}

bool AccessibilityHelper::isWebArea(const ElementRef& element) {
  const auto name = readAttribute<std::string>(accessibility_, element, attribute::role);
  if (name == role::webArea || name == role::htmlTextArea || name == role::htmlTextInput) return true;
  const auto parent = readAttribute<ElementRef>(accessibility_, element, attribute::parent);
  return parent && hasWebAreaAncestor(*parent, ancestorsExamined);
}

bool AccessibilityHelper::hasWebAreaAncestor(const ElementRef& element, int depth) {
  if (depth < 1) return false;
  if (hasRole(element, role::webArea)) return true;
  const auto parent = readAttribute<ElementRef>(accessibility_, element, attribute::parent);
  return parent && hasWebAreaAncestor(*parent, depth - 1);
}

bool AccessibilityHelper::hasRole(const ElementRef& element, std::string_view name) {
  return readAttribute<std::string>(accessibility_, element, attribute::role) == name;
}

bool AccessibilityHelper::isPasteFallbackApp() {
  const auto application = workspace_.frontmostApplication();
  return application && preferences::isPasteFallbackApp(defaults_, application->bundleIdentifier);
}

PasteChord AccessibilityHelper::pasteChord() {
  const auto application = workspace_.frontmostApplication();
  const PasteChord known = application ? application->pasteChord : PasteChord::controlV;
  if (known != PasteChord::controlV) return known;
  const auto element = focusedElement();
  return element && hasRole(*element, role::terminal) ? PasteChord::shiftInsert : known;
}

bool AccessibilityHelper::isPasteObservable() {
  const auto application = workspace_.frontmostApplication();
  return !application || !application->isReadForByAnother;
}

std::optional<std::int64_t> AccessibilityHelper::caret(const ElementRef& element) {
  const auto range = readAttribute<TextRange>(accessibility_, element, attribute::selectedTextRange);
  return range ? std::optional(range->location) : std::nullopt;
}

std::optional<AccessibilityHelper::Place> AccessibilityHelper::place(const ElementRef& element,
                                                                     const std::string& typed,
                                                                     std::int64_t count) {
  const auto location = caret(element);
  if (!location) return std::nullopt;
  const auto before = accessibility_.parameterizedAttribute(element, attribute::stringForRange,
                                                            TextRange::before(*location, count));
  const auto* found = before ? std::get_if<std::string>(&*before) : nullptr;
  if (!found) return std::nullopt;
  return Place{*location, *found, text::equals(*found, typed)};
}

std::optional<AccessibilityHelper::Place> AccessibilityHelper::lookFor(const ElementRef& element,
                                                                       const std::string& typed,
                                                                       std::int64_t count) {
  auto found = place(element, typed, count);
  return found && !found->before.empty() ? found : std::nullopt;
}

std::optional<AccessibilityHelper::Place> AccessibilityHelper::awaitTyped(const ElementRef& element,
                                                                          const std::string& typed,
                                                                          std::int64_t count) {
  std::optional<Place> last;
  for (milliseconds waited{0};; waited += waitStep) {
    auto place = lookFor(element, typed, count);
    if (!place) return last;
    last = place;
    if (place->isBehindTyped || waited >= longestWait || !accessibility_.pause(waitStep)) return place;
  }
}

}  // namespace tessarin
