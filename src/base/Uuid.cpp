#include "base/Uuid.h"

#include <array>
#include <cstdint>
#include <random>

namespace tessarin {
namespace {

std::array<std::uint8_t, 16> randomBytes() {
  std::random_device device;
  std::uniform_int_distribution<int> byte(0, 255);
  std::array<std::uint8_t, 16> bytes{};
  for (auto& b : bytes) b = static_cast<std::uint8_t>(byte(device));
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
