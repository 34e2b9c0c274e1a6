#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// Text as the user perceives it. All strings are UTF-8; malformed bytes count as U+FFFD each maximal run as
/// ICU does. A "character" is an extended grapheme cluster. Every function has a fast path for ASCII.
namespace tessarin::text {

/// Number of characters.
std::size_t characterCount(std::string_view text);
/// Number of columns that a terminal gives them: two to Chinese, Japanese and Korean characters and to emoji.
std::size_t columnCount(std::string_view text);
/// The first character; empty when there is none.
std::string firstCharacter(std::string_view text);
/// The last `count` characters, or all of them when there are fewer.
std::string lastCharacters(std::string_view text, std::size_t count);
/// The text without its last character.
std::string withoutLastCharacter(std::string_view text);

/// Comparison by canonical equivalence: the same text in two normal forms is equal.
bool equals(std::string_view a, std::string_view b);
/// Whole characters only, by canonical equivalence: "e" is no prefix of a decomposed "é".
bool startsWith(std::string_view text, std::string_view prefix);
bool contains(std::string_view text, std::string_view part);

/// The composed normal form: canonically equivalent texts become the same bytes.
std::string normalized(std::string_view text);
/// `contains` for texts that are `normalized` already.
bool containsNormalized(std::string_view text, std::string_view part);
/// Whether a character begins or ends at this byte.
bool isBoundary(std::string_view text, std::size_t position);

/// Full, locale-independent lower-casing of the whole string.
std::string lowercased(std::string_view text);

/// Whether the first scalar is of general category L, M or N.
bool startsAlphanumeric(std::string_view text);
/// Number of characters that begin so.
std::size_t alphanumericCount(std::string_view text);
/// Whether the first scalar is alphanumeric and not of a script that writes its words without spaces between
/// them (Han, kana, Thai, Khmer and the like).
bool isOfSpacedWord(std::string_view character);
/// The text as one would type it after the trigger character: lower-cased, each run of what does not belong
/// in a query as one "_" between the rest; apostrophes, full stops and what is not seen left out.
std::string typableWord(std::string_view text);
/// The composed text with the plain letters that are typed where a keyboard lacks others: Latin, Greek and
/// Cyrillic ones without accents, ligatures written out.
std::string withPlainLetters(std::string_view text);

/// Whether the bytes are well-formed UTF-8.
bool isValidUtf8(std::string_view text);
std::string fromUtf16(std::u16string_view text);
std::u16string toUtf16(std::string_view text);

}  // namespace tessarin::text
