#include "support/FakeDocument.h"

#include <gtest/gtest.h>

#include "platform/KeyCodes.h"
#include "text/Graphemes.h"

namespace tessarin::testing {

void FakeDocument::type(const KeyEvent& event) {
  if (event.keyCode == keycode::deleteBackward) {
    text = text::withoutLastCharacter(text);
  } else if (!(event.flags & keyflag::chord)) {
    text += text::fromUtf16(event.text);
  }
}

void FakeDocument::apply(const Replacement& replacement) {
  const auto count =
      static_cast<std::size_t>(replacement.deleteCount) + (replacement.includeTriggerChar ? 1 : 0);
  const std::string erased = text::lastCharacters(text, count);
  EXPECT_EQ(erased, replacement.typed) << "in the document: " << text;
  text.resize(text.size() - erased.size());
  text += replacement.text;
}

}  // namespace tessarin::testing
