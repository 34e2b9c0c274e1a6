#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// The text itself and, when it is one character that stays one with a skin-tone modifier behind it, the text
/// with each of the five modifiers from light to dark. Never empty.
std::vector<std::string> makeSkinToneVariants(const std::string& text);

/// Whether there is more to choose from than the text itself.
bool supportsSkinTones(std::string_view text);

}  // namespace tessarin
