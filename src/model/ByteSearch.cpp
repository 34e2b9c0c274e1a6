#include "model/ByteSearch.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace tessarin {
namespace {

/// Where the first character of a text ends: its last byte tells letters of one script apart, the first
/// hardly.
std::size_t endOfFirst(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t size = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC0 ? 2 : 1;
  return std::min(size, text.size()) - 1;
}

class Matcher {
 public:
  Matcher(std::string_view needle, Before before, char a, char b)
      : needle_(needle), before_(before), a_(a), b_(b), tellingByte_(endOfFirst(needle)) {}

  bool matches(const char* at) const {
    return *at == needle_.front() && hasRightBefore(at) &&
           std::memcmp(at, needle_.data(), needle_.size()) == 0;
  }

#ifdef __SSE2__
  static constexpr std::size_t width = 16;

  /// One bit for each of the 16 places whose first character, last and preceding bytes may fit.
  std::uint32_t candidates(const char* at) const {
    __m128i fits = _mm_and_si128(equal(at + tellingByte_, needle_[tellingByte_]),
                                 equal(at + needle_.size() - 1, needle_.back()));
    if (before_ == Before::eitherOf) {
      fits = _mm_and_si128(fits, _mm_or_si128(equal(at - 1, a_), equal(at - 1, b_)));
    }
    return static_cast<std::uint32_t>(_mm_movemask_epi8(fits));
  }
#endif

 private:
  bool hasRightBefore(const char* at) const {
    return before_ == Before::anything || at[-1] == a_ || at[-1] == b_;
  }

#ifdef __SSE2__
  static __m128i equal(const char* at, char c) {
    return _mm_cmpeq_epi8(_mm_loadu_si128(reinterpret_cast<const __m128i*>(at)), _mm_set1_epi8(c));
  }
#endif

  std::string_view needle_;
  Before before_;
  char a_;
  char b_;
  std::size_t tellingByte_;
};

}  // namespace

std::size_t findBytes(std::string_view pool, std::size_t from, std::size_t end, std::string_view needle,
                      Before before, char a, char b) {
  if (end < needle.size()) return std::string_view::npos;
  const std::size_t last = end - needle.size();
  const Matcher matcher(needle, before, a, b);
  std::size_t at = from;
#ifdef __SSE2__
  for (; at + Matcher::width <= last + 1; at += Matcher::width) {
    std::uint32_t places = matcher.candidates(pool.data() + at);
    for (; places != 0; places &= places - 1) {
      const std::size_t place = at + static_cast<std::size_t>(std::countr_zero(places));
      if (std::memcmp(pool.data() + place, needle.data(), needle.size()) == 0) return place;
    }
  }
#endif
  for (; at <= last; ++at) {
    if (matcher.matches(pool.data() + at)) return at;
  }
  return std::string_view::npos;
}

}  // namespace tessarin
