#pragma once

#include <string>

#include "platform/EventTap.h"
#include "platform/TextInsertion.h"

namespace tessarin::testing {

/// A text with the caret at its end, which keys type into and replacements change. A replacement whose
/// shortcode does not stand before the caret, or that would erase anything else, fails the test.
class FakeDocument {
 public:
  void type(const KeyEvent& event);
  void apply(const Replacement& replacement);

  std::string text;
};

}  // namespace tessarin::testing
