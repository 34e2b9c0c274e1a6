#include "insertion/PlainText.h"

#include <algorithm>
#include <cctype>
#include <string_view>

#include "text/Graphemes.h"

namespace tessarin {
namespace {

std::string lowercasedAscii(std::string name) {
  std::ranges::transform(name, name.begin(), [](unsigned char c) { return std::tolower(c); });
  return name;
}

/// The type STRING is Latin-1, whose bytes are the first 256 code points.
std::string fromLatin1(std::string_view bytes) {
  std::u16string units;
  for (const unsigned char byte : bytes) units.push_back(byte);
  return text::fromUtf16(units);
}

}  // namespace

std::optional<std::string> plainText(const std::vector<PasteboardItem>& items) {
  for (const std::string_view wanted : {"utf8_string", "text/plain;charset=utf-8", "text/plain", "string"}) {
    for (const PasteboardItem& item : items) {
      if (lowercasedAscii(item.type) != wanted) continue;
      if (text::isValidUtf8(item.data)) return item.data;
      if (wanted == "string") return fromLatin1(item.data);
    }
  }
  return std::nullopt;
}

}  // namespace tessarin
