#include "base/Uuid.h"

#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdint>
#include <system_error>

namespace tessarin {
namespace {

std::array<std::uint8_t, 16> randomBytes() {
  std::array<std::uint8_t, 16> bytes{};
  if (getentropy(bytes.data(), bytes.size()) != 0) {
    throw std::system_error(errno, std::generic_category(), "no random bytes");
  }
  return bytes;
}

}  // namespace

std::string makeUuid() {
  auto bytes = randomBytes();
  bytes[6] = static_cast<std::uint8_t>(0x40 | (bytes[6] & 0x0F));  // version 4: random
  bytes[8] = static_cast<std::uint8_t>(0x80 | (bytes[8] & 0x3F));  // the common variant
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i == 4 || i == 6 || i == 8 || i == 10) text += '-';
    text += "0123456789ABCDEF"[bytes[i] >> 4];
    text += "0123456789ABCDEF"[bytes[i] & 0x0F];
  }
  return text;
}

}  // namespace tessarin
