#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/x11/SelectionKeeper.h"

namespace tessarin::x11 {

/// Selections as bytes, on their way from one process of this program to another on the same machine.
std::string encodeSelections(const std::vector<KeptSelection>& selections);
/// Nothing when the bytes are not such.
std::optional<std::vector<KeptSelection>> decodeSelections(const std::string& bytes);

}  // namespace tessarin::x11
