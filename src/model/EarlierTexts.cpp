#include "model/EarlierTexts.h"

#include <algorithm>

#include "model/FoldedEntry.h"

namespace tessarin {

void EarlierTexts::clear() {
  texts_.clear();
  isPlain_ = true;
  bytes_.reset();
  pairs_.reset();
}

void EarlierTexts::add(std::string_view text) {
  texts_.append(text).push_back(textEnd);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto byte = static_cast<unsigned char>(text[at]);
    if (byte >= 0x80 || byte == '\r') isPlain_ = false;
    bytes_.set(byte);
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
  if (!isPlain_) {
    lengths.append(keyword.size(), '\0');
    return;
  }
  std::size_t length = 0;
  for (std::size_t at = 0; at < keyword.size(); ++at) {
    length = coveredAt(keyword.substr(at), length > 0 ? length - 1 : 0);
    lengths.push_back(static_cast<char>(length));
  }
}

}  // namespace tessarin
