#pragma once

#include <gtest/gtest.h>

#include "platform/EventTap.h"
#include "platform/KeyCodes.h"
#include "platform/TextInsertion.h"
#include "text/Graphemes.h"

namespace tessarin::testing {

/// A text with the caret at its end, which keys type into and replacements change. A replacement whose
/// shortcode does not stand before the caret, or that would erase anything else, fails the test.
class FakeDocument {
 public:
  void type(const KeyEvent& event) {
    if (event.keyCode == keycode::deleteBackward) {
      text = text::withoutLastCharacter(text);
    } else if (!(event.flags & keyflag::chord)) {
      text += text::fromUtf16(event.text);
    }
  }

  void apply(const Replacement& replacement) {
    const auto count = replacement.deleteCount + (replacement.includeTriggerChar ? 1 : 0);
    const std::string erased = text::lastCharacters(text, static_cast<std::size_t>(count));
    EXPECT_EQ(erased, replacement.typed) << "in the document: " << text;
    text.resize(text.size() - erased.size());
    text += replacement.text;
  }

  std::string text;
};

}  // namespace tessarin::testing
