#pragma once

#include <bitset>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarin {

/// The texts of one snippet that the score looks at before a given keyword. A part of the keyword that stands
/// in one of them as well is decided there.
class EarlierTexts {
 public:
  void clear();
  /// `length` in characters.
  void add(std::string_view text, int length);

  /// For each byte of `keyword`, the length in bytes of the longest part beginning there that stands in an
  /// earlier text, at most 255; appended to `lengths`. Shorter than the truth where a character of an earlier
  /// text is written as several.
  void appendCovered(std::string_view keyword, std::string& lengths) const;

 private:
  static std::size_t pairOf(char a, char b) {
    return (static_cast<unsigned char>(a) * 31U + static_cast<unsigned char>(b)) % 1024U;
  }
  std::size_t coveredAt(std::string_view rest, std::size_t atLeast) const;

  std::string texts_;
  std::bitset<256> bytes_;
  std::bitset<1024> pairs_;  ///< by `pairOf`: what is not in here needs no search
};

}  // namespace tessarin
