#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/Pasteboard.h"

namespace tessarin {

/// The plain text among saved pasteboard contents, in UTF-8; none when there is none that can be read.
std::optional<std::string> plainText(const std::vector<PasteboardItem>& items);

}  // namespace tessarin
