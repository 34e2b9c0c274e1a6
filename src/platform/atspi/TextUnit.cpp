#include "platform/atspi/TextUnit.h"

#include <algorithm>

namespace tessarin::atspi {

std::int64_t countUnits(std::string_view text, TextUnit unit) {
  if (unit == TextUnit::utf8Byte) return static_cast<std::int64_t>(text.size());
  const auto codePoints =
      std::count_if(text.begin(), text.end(), [](unsigned char byte) { return (byte & 0xC0) != 0x80; });
  if (unit == TextUnit::codePoint) return codePoints;
  // Beyond the basic plane a code point takes four bytes, and two UTF-16 units.
  return codePoints +
         std::count_if(text.begin(), text.end(), [](unsigned char byte) { return byte >= 0xF0; });
}

std::string withoutPadding(std::string_view text) {
  constexpr std::string_view padding = "\xEF\xBB\xBF";
  constexpr std::size_t longCodePoint = 4;
  std::string result;
  for (std::size_t at = 0; at < text.size();) {
    const bool isLong = static_cast<unsigned char>(text[at]) >= 0xF0;
    const std::size_t length = isLong ? longCodePoint : 1;
    result += text.substr(at, length);
    at += length;
    if (isLong && at < text.size() && text.substr(at).starts_with(padding)) at += padding.size();
  }
  return result;
}

Toolkit Toolkit::named(std::string_view name, std::string_view version) {
  if (name == "Qt")
    return {.offset = TextUnit::utf16,
            .insertedLength = TextUnit::utf16,
            .showsWebPages = false,
            .changesAtOneGo = true};
  if (name == "Gecko") return {.offset = TextUnit::utf16, .pads = true};
  const bool isGtk3 = name == "gtk";
  const bool isGtk4 = name == "GTK" && !version.starts_with("3.");
  if (!isGtk3 && !isGtk4) return {};
  return {.movesCaret = true, .showsWebPages = false, .isWindowRelative = isGtk4, .changesAtOneGo = true};
}

}  // namespace tessarin::atspi
