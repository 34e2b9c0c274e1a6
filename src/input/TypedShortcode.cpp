#include "input/TypedShortcode.h"

#include "text/Graphemes.h"

namespace tessarin {

void TypedShortcode::begin(const std::string& triggerCharacter, Preceding preceding) {
  trigger_ = triggerCharacter;
  preceding_ = preceding;
  letters_.clear();
  caretMayHaveMoved_ = false;
}

void TypedShortcode::append(const std::string& characters) {
  letters_ += characters;
}

void TypedShortcode::deleteLast() {
  letters_ = text::withoutLastCharacter(letters_);
}

void TypedShortcode::noteTextBeforeCaret(std::string_view text) {
  if (preceding_ == Preceding::unknown && !caretMayHaveMoved_) preceding_ = precedingIn(text, this->text());
}

std::int64_t TypedShortcode::length() const {
  return static_cast<std::int64_t>(text::characterCount(text()));
}

}  // namespace tessarin
