#include "model/EarlierTexts.h"

#include <algorithm>

#include "model/FoldedEntry.h"

namespace tessarin {
namespace {

int scalarCount(std::string_view text) {
  return static_cast<int>(std::ranges::count_if(text, [](char c) { return (c & 0xC0) != 0x80; }));
}

}  // namespace

void EarlierTexts::clear() {
  texts_.clear();
  bytes_.reset();
  pairs_.reset();
}

void EarlierTexts::add(std::string_view text, int length) {
  if (scalarCount(text) != length) return;  // a part of it need not be whole characters, and is then no match
  texts_.append(text).push_back(textEnd);
  for (std::size_t at = 0; at < text.size(); ++at) {
    bytes_.set(static_cast<unsigned char>(text[at]));
    if (at > 0) pairs_.set(pairOf(text[at - 1], text[at]));
  }
}

std::size_t EarlierTexts::coveredAt(std::string_view rest, std::size_t atLeast) const {
  if (!bytes_.test(static_cast<unsigned char>(rest[0]))) return 0;
  if (rest.size() == 1 || !pairs_.test(pairOf(rest[0], rest[1]))) return 1;
  std::size_t length = std::max<std::size_t>(atLeast, 1);
  const std::size_t most = std::min<std::size_t>(rest.size(), 255);
  std::size_t at = 0;
  while (length < most && (at = texts_.find(rest.substr(0, length + 1), at)) != std::string::npos) {
    while (length < most && texts_[at + length] == rest[length]) ++length;
  }
  return length;
}

void EarlierTexts::appendCovered(std::string_view keyword, std::string& lengths) const {
  std::size_t length = 0;
  for (std::size_t at = 0; at < keyword.size(); ++at) {
    length = coveredAt(keyword.substr(at), length > 0 ? length - 1 : 0);
    lengths.push_back(static_cast<char>(length));
  }
}

}  // namespace tessarin
