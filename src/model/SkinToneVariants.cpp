#include "model/SkinToneVariants.h"

#include <array>

#include "text/Graphemes.h"

namespace tessarin {
namespace {

/// The Fitzpatrick modifiers U+1F3FB to U+1F3FF.
constexpr std::array<std::string_view, 5> modifiers = {"\U0001F3FB", "\U0001F3FC", "\U0001F3FD", "\U0001F3FE",
                                                       "\U0001F3FF"};

}  // namespace

bool supportsSkinTones(std::string_view text) {
  return text::characterCount(text) == 1 && text::characterCount(std::string(text).append(modifiers[0])) == 1;
}

std::vector<std::string> makeSkinToneVariants(const std::string& text) {
  std::vector<std::string> variants{text};
  if (!supportsSkinTones(text)) return variants;
  for (const std::string_view modifier : modifiers) variants.push_back(text + std::string(modifier));
  return variants;
}

}  // namespace tessarin
