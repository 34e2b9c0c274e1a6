#include "support/FakeTextField.h"

#include <numeric>
#include <utility>

#include "text/Graphemes.h"

namespace tessarin::testing {
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
