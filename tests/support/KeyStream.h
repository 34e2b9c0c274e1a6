#pragma once

#include <string_view>
#include <vector>

#include "platform/EventTap.h"
#include "platform/KeyCodes.h"

namespace tessarin::testing {

/// A key-down event that produces `text` (UTF-8).
KeyEvent key(std::int64_t keyCode, std::string_view text = "", std::uint64_t flags = 0);
/// A key with no meaning but its text.
KeyEvent letter(std::string_view text, std::uint64_t flags = 0);

/// One event a character of `keys`; ⏎ ⇥ ⌫ ⎋ ← → ↑ ↓ and the space stand for the keys of that name.
std::vector<KeyEvent> keyStream(std::string_view keys);

}  // namespace tessarin::testing
