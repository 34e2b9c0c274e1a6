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
  return translator() ? translator()(context, text, count) : withCount(text, count);
}

}  // namespace tessarin
