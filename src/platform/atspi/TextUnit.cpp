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

Toolkit Toolkit::named(std::string_view name, std::string_view version) {
  if (name == "Qt") return {TextUnit::utf16, TextUnit::utf16, false, false, false};
  const bool isGtk3 = name == "gtk";
  const bool isGtk4 = name == "GTK" && !version.starts_with("3.");
  if (!isGtk3 && !isGtk4) return {};
  return {TextUnit::codePoint, TextUnit::utf8Byte, true, false, isGtk4};
}

}  // namespace tessarin::atspi
