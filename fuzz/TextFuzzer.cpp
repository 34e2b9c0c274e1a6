#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <string>

#include "Check.h"
#include "insertion/PlainText.h"
#include "text/Graphemes.h"

namespace tessarin::fuzz {
namespace {

/// A letter that makes any text leave the fast path, and that never joins what stands before it.
constexpr const char* slow = "\u00e9";

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<signed char>(c) >= 0; });
}

std::string decomposed(std::string_view text) {
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* decomposer = icu::Normalizer2::getNFDInstance(status);
  std::string result;
  decomposer
      ->normalize(icu::UnicodeString::fromUTF8(icu::StringPiece(text.data(), static_cast<int>(text.size()))),
                  status)
      .toUTF8String(result);
  check(U_SUCCESS(status), "any text can be decomposed");
  return result;
}

void checkCharacters(std::string_view text) {
  const std::size_t count = text::characterCount(text);
  std::size_t characters = 0;
  for (std::string_view rest = text; !rest.empty(); ++characters) {
    const std::string first = text::firstCharacter(rest);
    check(!first.empty() && rest.starts_with(first), "the first character is at the front");
    rest.remove_prefix(first.size());
    check(text::isBoundary(text, text.size() - rest.size()), "a character ends at a boundary");
  }
  check(characters == count, "a text is the sum of its characters");
  constexpr std::size_t shortEnough = 100;  // each place costs a walk through all of it
  std::size_t boundaries = 0;
  for (std::size_t i = 1; i <= std::min(text.size(), shortEnough); ++i) {
    boundaries += text::isBoundary(text, i) ? 1 : 0;
  }
  check(text.size() > shortEnough || boundaries == count,
        "there are no boundaries but those between characters");
  check(text::withoutLastCharacter(text) + text::lastCharacters(text, 1) == text, "the last can be put back");
  check(text::lastCharacters(text, count) == text, "the last of all are all");
  if (count > 0) {
    check(text::characterCount(text::withoutLastCharacter(text)) == count - 1,
          "deleting takes one character");
    check(text::characterCount(text::lastCharacters(text, count - 1)) == count - 1,
          "the last ones are as many");
  }
}

void checkForms(std::string_view text) {
  const std::string normal = text::normalized(text);
  check(text::normalized(normal) == normal && text::isValidUtf8(normal), "the normal form is one");
  check(text::equals(text, normal) && text::equals(normal, decomposed(text)), "a form is the text itself");
  const std::string lower = text::lowercased(text);
  check(text::lowercased(lower) == lower && text::isValidUtf8(lower) >= text::isValidUtf8(text),
        "small letters stay small");
  check(text::isValidUtf8(text) == (text::fromUtf16(text::toUtf16(text)) == text),
        "what is UTF-8 survives the way through UTF-16");
  check(text::startsAlphanumeric(text) || !text::isOfSpacedWord(text), "letters of words are letters");
  const std::string word = text::typableWord(text);
  check(text::typableWord(word) == word, "what can be typed is typed as it is");
  const std::string plain = text::withPlainLetters(lower);
  check(text::withPlainLetters(plain) == plain, "plain letters stay plain");
  check(text::alphanumericCount(text) <= text::characterCount(text), "characters are counted once");
}

void checkParts(std::string_view text, std::string_view part) {
  const bool isPrefix = text::startsWith(text, part);
  check(!isPrefix || text::contains(text, part), "a prefix is contained");
  check(text::startsWith(text, text) && text::contains(text, "") && text::equals(text, text),
        "a text is part of itself");
  check(text::equals(text, part) == text::equals(part, text), "equality has no direction");
  if (text::equals(text, part)) check(isPrefix, "equal texts are prefixes");
}

/// What is plain is done without the library, and comes to the same.
void checkFastPaths(const std::string& text, std::string_view part) {
  if (!isAscii(text) || !isAscii(part)) return;
  const std::string longer = text + slow;
  check(text::characterCount(longer) == text::characterCount(text) + 1, "counts are the same on both paths");
  check(text::withoutLastCharacter(longer) == text, "deleting is the same on both paths");
  check(text::firstCharacter(longer) == (text.empty() ? slow : text::firstCharacter(text)),
        "the first is the same on both paths");
  check(text::lowercased(longer) == text::lowercased(text) + slow, "lower-casing is the same on both paths");
  check(text::normalized(longer) == text + slow, "plain text is its normal form");
  check(text::startsWith(longer, part) == text::startsWith(text, part),
        "prefixes are the same on both paths");
  check(text::contains(longer, part) == text::contains(text, part), "parts are the same on both paths");
  for (std::size_t i = 0; i <= text.size(); ++i) {
    check(text::isBoundary(longer, i) == text::isBoundary(text, i), "boundaries are the same on both paths");
  }
}

}  // namespace
}  // namespace tessarin::fuzz

/// The first byte says how long the first of two texts is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  if (size == 0) return 0;
  const std::string_view input = fuzz::asText(data + 1, size - 1);
  const std::string_view part = input.substr(0, data[0]);
  const std::string_view text = input.substr(part.size());
  fuzz::checkCharacters(text);
  fuzz::checkForms(text);
  fuzz::checkParts(text, part);
  fuzz::checkFastPaths(std::string(text), part);
  const auto plain = plainText({{std::string(part), "x"}, {"STRING", std::string(text)}});
  fuzz::check(plain && text::isValidUtf8(*plain), "plain text is UTF-8");
  return 0;
}
