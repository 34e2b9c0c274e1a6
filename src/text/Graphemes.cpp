#include "text/Graphemes.h"

#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/ubrk.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uscript.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <utility>

namespace tessarin::text {
namespace {

void require(UErrorCode status) {
  if (U_FAILURE(status)) throw std::runtime_error(u_errorName(status));
}

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

/// Every byte a character of its own. CR LF is one character, so a CR leaves the fast path.
bool isBytewise(std::string_view text) {
  return std::all_of(text.begin(), text.end(),
                     [](char c) { return static_cast<signed char>(c) >= 0 && c != '\r'; });
}

struct CloseBreakIterator {
  void operator()(UBreakIterator* iterator) const { ubrk_close(iterator); }
};

/// Walks over the boundaries of a text, by the iterator that each thread keeps. Only one at a time a thread.
class Boundaries {
 public:
  explicit Boundaries(std::string_view text) : iterator_(shared()) {
    UErrorCode status = U_ZERO_ERROR;
    UText source = UTEXT_INITIALIZER;
    utext_openUTF8(&source, text.data(), static_cast<std::int64_t>(text.size()), &status);
    ubrk_setUText(iterator_, &source, &status);
    utext_close(&source);
    require(status);
  }

  bool next() { return ubrk_next(iterator_) != UBRK_DONE; }
  bool previous() { return ubrk_previous(iterator_) != UBRK_DONE; }
  void toEnd() { ubrk_last(iterator_); }
  bool isAt(std::size_t position) { return ubrk_isBoundary(iterator_, static_cast<std::int32_t>(position)); }
  std::size_t position() const { return static_cast<std::size_t>(ubrk_current(iterator_)); }

 private:
  static UBreakIterator* shared() {
    thread_local const std::unique_ptr<UBreakIterator, CloseBreakIterator> iterator = [] {
      UErrorCode status = U_ZERO_ERROR;
      std::unique_ptr<UBreakIterator, CloseBreakIterator> opened(
          ubrk_open(UBRK_CHARACTER, "", nullptr, 0, &status));
      require(status);
      return opened;
    }();
    return iterator.get();
  }

  UBreakIterator* iterator_;
};

enum class Break { no, yes, unclear };

std::size_t countByIterator(std::string_view text) {
  Boundaries boundaries(text);
  std::size_t count = 0;
  while (boundaries.next()) ++count;
  return count;
}

/// Whether a sign that joins consonants makes one character of them, which newer versions of the library say.
bool joinsConsonants() {
  static const bool joins = countByIterator("\u0915\u094D\u0924") == 1;
  return joins;
}

std::int32_t breakKind(UChar32 scalar) {
  return u_getIntPropertyValue(scalar, UCHAR_GRAPHEME_CLUSTER_BREAK);
}

/// Whether a character ends between two scalars, where that is clear from these alone: by the standard's
/// rules for what most texts are made of.
Break breakBetween(UChar32 before, UChar32 after) {
  if (before < 0 || after < 0) return Break::unclear;
  const std::int32_t first = breakKind(before);
  const std::int32_t second = breakKind(after);
  const bool isLetter = second == U_GCB_OTHER || second == U_GCB_LV || second == U_GCB_LVT;
  const bool isMark = second == U_GCB_EXTEND || second == U_GCB_SPACING_MARK;
  if (!isLetter && !isMark) return Break::unclear;
  switch (first) {
    case U_GCB_OTHER:
    case U_GCB_SPACING_MARK:
    case U_GCB_LV:
    case U_GCB_LVT:
      return isMark ? Break::no : Break::yes;
    case U_GCB_EXTEND:
      if (isMark) return Break::no;
      return joinsConsonants() ? Break::unclear : Break::yes;
    default:
      return Break::unclear;
  }
}

Break breakAt(std::string_view text, std::size_t position) {
  auto before = static_cast<std::int32_t>(position);
  std::int32_t after = before;
  UChar32 last = 0;
  UChar32 next = 0;
  U8_PREV(text.data(), 0, before, last);
  U8_NEXT(text.data(), after, static_cast<std::int32_t>(text.size()), next);
  return breakBetween(last, next);
}

/// Where the last `count` characters begin.
std::size_t startOfLast(std::string_view text, std::size_t count) {
  if (isBytewise(text)) return text.size() - std::min(count, text.size());
  Boundaries boundaries(text);
  boundaries.toEnd();
  while (count > 0 && boundaries.previous()) --count;
  return boundaries.position();
}

/// Negative where there is none.
UChar32 firstScalar(std::string_view text) {
  if (text.empty()) return U_SENTINEL;
  std::int32_t at = 0;
  UChar32 scalar = 0;
  U8_NEXT(text.data(), at, static_cast<std::int32_t>(text.size()), scalar);
  return scalar;
}

bool isWide(UChar32 scalar) {
  const int width = u_getIntPropertyValue(scalar, UCHAR_EAST_ASIAN_WIDTH);
  return width == U_EA_WIDE || width == U_EA_FULLWIDTH;
}

bool isAlphanumeric(UChar32 scalar) {
  return scalar >= 0 && (U_GET_GC_MASK(scalar) & (U_GC_L_MASK | U_GC_M_MASK | U_GC_N_MASK)) != 0;
}

constexpr UChar32 rightQuote = 0x2019;

// The combining marks of these scripts, and the one that makes another letter of its letter.
constexpr char16_t firstAccent = 0x0300;
constexpr char16_t lastAccent = 0x036F;
constexpr char16_t breve = 0x0306;

/// Whether a character with this byte in front can be an accented letter of these scripts.
bool mayBeginAccented(char lead) {
  const auto byte = static_cast<unsigned char>(lead);
  return (byte >= 0xC3 && byte <= 0xD1) || byte == 0xE1;
}

/// What a letter is written as that no mark can be taken from.
icu::UnicodeString plainLetters(char16_t letter) {
  constexpr std::u16string_view letters = u"œæßłøđıðþ";
  constexpr std::array<std::u16string_view, letters.size()> plain = {u"oe", u"ae", u"ss", u"l", u"o",
                                                                     u"d",  u"i",  u"d",  u"th"};
  const std::size_t found = letters.find(letter);
  const std::u16string_view text =
      found == std::u16string_view::npos ? std::u16string_view(&letter, 1) : plain.at(found);
  return {text.data(), static_cast<std::int32_t>(text.size())};
}

/// More than any character is used in.
constexpr std::int32_t mostScripts = 64;

bool startsWithNormalized(std::string_view text, std::string_view prefix) {
  return text.starts_with(prefix) && isBoundary(text, prefix.size());
}

}  // namespace

std::size_t characterCount(std::string_view text) {
  if (isBytewise(text)) return text.size();
  const auto size = static_cast<std::int32_t>(text.size());
  std::size_t count = 0;
  UChar32 before = U_SENTINEL;
  for (std::int32_t at = 0; at < size;) {
    UChar32 after = 0;
    U8_NEXT(text.data(), at, size, after);
    const Break found = count == 0 ? Break::yes : breakBetween(before, after);
    if (found == Break::unclear) return countByIterator(text);
    if (found == Break::yes) ++count;
    before = after;
  }
  return count;
}

std::size_t columnCount(std::string_view text) {
  std::size_t columns = 0;
  while (!text.empty()) {
    columns += isWide(firstScalar(text)) ? 2 : 1;
    text.remove_prefix(firstCharacter(text).size());
  }
  return columns;
}

std::string firstCharacter(std::string_view text) {
  if (text.empty() || isBytewise(text)) return std::string(text.substr(0, 1));
  Boundaries boundaries(text);
  boundaries.next();
  return std::string(text.substr(0, boundaries.position()));
}

std::string lastCharacters(std::string_view text, std::size_t count) {
  return std::string(text.substr(startOfLast(text, count)));
}

std::string withoutLastCharacter(std::string_view text) {
  return std::string(text.substr(0, startOfLast(text, 1)));
}

bool isBoundary(std::string_view text, std::size_t position) {
  if (position == 0 || position >= text.size()) return position <= text.size();
  const std::string_view around = text.substr(position - 1, 2);
  if (isAscii(around)) return around != "\r\n";
  const Break found = breakAt(text, position);
  return found == Break::unclear ? Boundaries(text).isAt(position) : found == Break::yes;
}

std::string normalized(std::string_view text) {
  if (isAscii(text)) return std::string(text);
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* composer = icu::Normalizer2::getNFCInstance(status);
  require(status);
  const auto source =
      icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
  std::string result;
  composer->normalize(source, status).toUTF8String(result);
  require(status);
  return result;
}

bool equals(std::string_view a, std::string_view b) {
  if (a == b) return true;
  return !(isAscii(a) && isAscii(b)) && normalized(a) == normalized(b);
}

bool startsWith(std::string_view text, std::string_view prefix) {
  if (isAscii(text) && isAscii(prefix)) return startsWithNormalized(text, prefix);
  return startsWithNormalized(normalized(text), normalized(prefix));
}

bool contains(std::string_view text, std::string_view part) {
  if (isAscii(text) && isAscii(part)) return containsNormalized(text, part);
  return containsNormalized(normalized(text), normalized(part));
}

bool containsNormalized(std::string_view text, std::string_view part) {
  for (std::size_t at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1)) {
    if (isBoundary(text, at) && isBoundary(text, at + part.size())) return true;
  }
  return false;
}

std::string lowercased(std::string_view text) {
  std::string result;
  if (isAscii(text)) {
    result = text;
    for (char& c : result) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    return result;
  }
  UErrorCode status = U_ZERO_ERROR;
  icu::StringByteSink<std::string> sink(&result);
  icu::CaseMap::utf8ToLower("", 0, icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())),
                            sink, nullptr, status);
  require(status);
  return result;
}

bool startsAlphanumeric(std::string_view text) {
  return isAlphanumeric(firstScalar(text));
}

std::size_t alphanumericCount(std::string_view text) {
  std::size_t count = 0;
  while (!text.empty()) {
    if (startsAlphanumeric(text)) ++count;
    text.remove_prefix(firstCharacter(text).size());
  }
  return count;
}

bool isOfSpacedWord(std::string_view character) {
  const UChar32 scalar = firstScalar(character);
  if (!isAlphanumeric(scalar)) return false;
  UErrorCode status = U_ZERO_ERROR;
  std::array<UScriptCode, mostScripts> scripts{};
  // Signs that several scripts share, as the long vowel of both kana, tell by these alone.
  const int count = uscript_getScriptExtensions(scalar, scripts.data(), mostScripts, &status);
  require(status);
  return std::none_of(scripts.begin(), scripts.begin() + count,
                      [](UScriptCode script) { return uscript_breaksBetweenLetters(script) != 0; });
}

std::string typableWord(std::string_view text) {
  const std::string lower = lowercased(text);
  std::string word;
  bool isParted = false;
  for (std::int32_t at = 0; at < static_cast<std::int32_t>(lower.size());) {
    const std::int32_t begin = at;
    UChar32 scalar = 0;
    U8_NEXT(lower.data(), at, static_cast<std::int32_t>(lower.size()), scalar);
    if (scalar == '\'' || scalar == rightQuote || scalar == '.' || u_charType(scalar) == U_FORMAT_CHAR)
      continue;
    if (isAlphanumeric(scalar) || scalar == '-' || scalar == '+') {
      if (std::exchange(isParted, false) && !word.empty()) word += '_';
      word.append(lower, static_cast<std::size_t>(begin), static_cast<std::size_t>(at - begin));
    } else {
      isParted = true;
    }
  }
  return word;
}

std::string withPlainLetters(std::string_view text) {
  if (std::ranges::none_of(text, mayBeginAccented)) return std::string(text);
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* decomposer = icu::Normalizer2::getNFDInstance(status);
  require(status);
  const auto source =
      icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
  const icu::UnicodeString decomposed = decomposer->normalize(source, status);
  require(status);
  icu::UnicodeString plain;
  for (std::int32_t at = 0; at < decomposed.length(); ++at) {
    const char16_t unit = decomposed[at];
    const bool isAccent = unit >= firstAccent && unit <= lastAccent;
    const bool isOfShortI = unit == breve && at > 0 && decomposed[at - 1] == u'и';
    if (!isAccent || isOfShortI) plain.append(plainLetters(unit));
  }
  std::string result;
  plain.toUTF8String(result);
  return normalized(result);
}

bool isValidUtf8(std::string_view text) {
  const auto length = static_cast<std::int32_t>(text.size());
  std::int32_t at = 0;
  while (at < length) {
    UChar32 scalar = 0;
    U8_NEXT(text.data(), at, length, scalar);
    if (scalar < 0) return false;
  }
  return true;
}

std::string fromUtf16(std::u16string_view text) {
  std::string result;
  icu::UnicodeString(false, text.data(), static_cast<std::int32_t>(text.size())).toUTF8String(result);
  return result;
}

std::u16string toUtf16(std::string_view text) {
  const auto converted =
      icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
  return {converted.getBuffer(), static_cast<std::size_t>(converted.length())};
}

}  // namespace tessarin::text
