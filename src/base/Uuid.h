#pragma once

#include <string>

namespace tessarin {

/// A new random UUID (version 4) as text: 36 characters, hexadecimal in upper case.
std::string makeUuid();

}  // namespace tessarin
