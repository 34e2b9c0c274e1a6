#include "support/FakeAccessibility.h"

#include <numeric>
#include <utility>

#include "text/Graphemes.h"

namespace tessarin::testing {

FakeAccessibility::FakeAccessibility() {
  system->attributes[std::string(attribute::focusedApplication)] = ElementRef(application);
}

void FakeAccessibility::focus(const std::shared_ptr<FakeElement>& element) {
  application->attributes[std::string(attribute::focusedElement)] = ElementRef(element);
  focusMoved_.emit();
}

void FakeAccessibility::beginBudget(std::chrono::milliseconds budget) {
  budgets.push_back(budget);
  deadline_ = elapsed_ + budget;
}

std::optional<AttributeValue> FakeAccessibility::attribute(const ElementRef& element, std::string_view name) {
  const FakeElement* found = answering(element, name);
  if (!found) return std::nullopt;
  const auto value = found->attributes.find(name);
  return value != found->attributes.end() ? std::optional(value->second) : std::nullopt;
}

std::optional<AttributeValue> FakeAccessibility::parameterizedAttribute(const ElementRef& element,
                                                                        std::string_view name,
                                                                        const AttributeValue& parameter) {
  const FakeElement* found = answering(element, name);
  if (!found) return std::nullopt;
  const auto reader = found->parameterized.find(name);
  return reader != found->parameterized.end() ? reader->second(parameter) : std::nullopt;
}

AccessibilityStatus FakeAccessibility::setAttribute(const ElementRef& element, std::string_view name,
                                                    const AttributeValue& value) {
  const FakeElement* found = answering(element, name);
  writes.push_back({element.get(), std::string(name), value});
  if (!found) return AccessibilityStatus::failure;
  const auto writer = found->writers.find(name);
  return writer != found->writers.end() ? writer->second(value) : AccessibilityStatus::success;
}

bool FakeAccessibility::spend(std::chrono::milliseconds duration) {
  if (elapsed_ + duration > deadline_) return false;
  elapsed_ += duration;
  while (!script_.empty() && script_.begin()->first <= elapsed_) {
    const auto work = script_.begin()->second;
    script_.erase(script_.begin());
    work();
  }
  return true;
}

const FakeElement* FakeAccessibility::answering(const ElementRef& element, std::string_view name) {
  ++calls;
  const auto* found = dynamic_cast<const FakeElement*>(element.get());
  if (!found || !spend(callDuration) || found->failing.contains(name)) return nullptr;
  return found;
}

namespace {

std::vector<std::string> charactersOf(std::string text) {
  std::vector<std::string> characters;
  while (!text.empty()) {
    characters.push_back(text::firstCharacter(text));
    text.erase(0, characters.back().size());
  }
  return characters;
}

}  // namespace

FakeTextField::FakeTextField() {
  attributes[std::string(attribute::role)] = std::string(role::textArea);
  attributes[std::string(attribute::value)] = std::string();
  setCaret(0);
  parameterized[std::string(attribute::stringForRange)] = [this](const AttributeValue& range) {
    return textIn(std::get<TextRange>(range));
  };
  writers[std::string(attribute::selectedTextRange)] = [this](const AttributeValue& value) {
    selection_ = std::get<TextRange>(value);
    return AccessibilityStatus::success;
  };
  writers[std::string(attribute::selectedText)] = [this](const AttributeValue& value) {
    return replaceSelection(std::get<std::string>(value));
  };
}

void FakeTextField::type(const std::string& text) {
  const auto typed = charactersOf(text);
  characters_.insert(characters_.begin() + static_cast<std::ptrdiff_t>(caret_), typed.begin(), typed.end());
  setCaret(caret_ + typed.size());
}

void FakeTextField::setCaret(std::size_t position) {
  caret_ = position;
  attributes[std::string(attribute::selectedTextRange)] = TextRange{static_cast<std::int64_t>(caret_), 0};
}

std::string FakeTextField::document() const {
  return std::accumulate(characters_.begin(), characters_.end(), std::string());
}

std::optional<AttributeValue> FakeTextField::textIn(const TextRange& range) const {
  if (range.location < 0) return std::nullopt;
  std::string found;
  for (std::int64_t i = 0; i < range.length; ++i) {
    found += characters_.at(static_cast<std::size_t>(range.location + i));
  }
  return found;
}

void FakeTextField::erase(const TextRange& range) {
  const auto first = characters_.begin() + static_cast<std::ptrdiff_t>(range.location);
  characters_.erase(first, first + static_cast<std::ptrdiff_t>(range.length));
  setCaret(static_cast<std::size_t>(range.location));
}

AccessibilityStatus FakeTextField::replaceSelection(const std::string& text) {
  if (!selection_ || writeResult == AccessibilityStatus::failure) return AccessibilityStatus::failure;
  erase(*std::exchange(selection_, std::nullopt));
  if (writeResult == AccessibilityStatus::success) type(text);
  return writeResult;
}

}  // namespace tessarin::testing
