#include "base/Translate.h"

#include <utility>

namespace tessarin {
namespace {

Translator& translator() {
  static Translator installed;
  return installed;
}

std::string withCount(std::string text, int count) {
  const auto place = text.find("%n");
  if (count >= 0 && place != std::string::npos) text.replace(place, 2, std::to_string(count));
  return text;
}

}  // namespace

void setTranslator(Translator installed) {
  translator() = std::move(installed);
}

std::string translate(const char* context, const char* text, const char* /*disambiguation*/, int count) {
  return withCount(translator() ? translator()(context, text, count) : text, count);
}

std::string filledIn(std::string_view text, const std::vector<std::string>& parts) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isPlace = text[i] == '%' && i + 1 < text.size() && text[i + 1] >= '1' && text[i + 1] <= '9';
    const std::size_t part = isPlace ? static_cast<std::size_t>(text[i + 1] - '1') : parts.size();
    if (part < parts.size()) {
      result += parts[part];
      ++i;
    } else {
      result += text[i];
    }
  }
  return result;
}

}  // namespace tessarin
