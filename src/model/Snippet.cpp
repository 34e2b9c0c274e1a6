#include "model/Snippet.h"

#include <unicode/normalizer2.h>

#include <algorithm>
#include <functional>

#include "text/Graphemes.h"

namespace tessarin {
namespace {

void combine(std::size_t& hash, std::size_t value) {
  // The golden ratio and the shifts spread the bits, so that the order of the fields counts.
  hash ^= value + 0x9E3779B97F4A7C15ULL + (hash << 6) + (hash >> 2);
}

/// Decomposed, so that canonically equivalent texts give the same bytes.
std::string canonicalForm(const std::string& text) {
  const bool ascii = std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; });
  if (ascii) return text;
  UErrorCode error = U_ZERO_ERROR;
  const icu::Normalizer2* normalizer = icu::Normalizer2::getNFDInstance(error);
  if (U_FAILURE(error)) return {};
  const icu::UnicodeString form = normalizer->normalize(icu::UnicodeString::fromUTF8(text), error);
  std::string bytes;
  return form.toUTF8String(bytes);
}

void combine(std::size_t& hash, const std::string& text) {
  combine(hash, std::hash<std::string>()(canonicalForm(text)));
}

}  // namespace

bool Snippet::operator==(const Snippet& other) const {
  return text::equals(id, other.id) && text::equals(name, other.name) &&
         text::equals(trigger, other.trigger) && text::equals(replacement, other.replacement) &&
         std::equal(keywords.begin(), keywords.end(), other.keywords.begin(), other.keywords.end(),
                    text::equals) &&
         text::equals(category, other.category) && isBuiltIn == other.isBuiltIn;
}

std::size_t hashValue(const Snippet& snippet) {
  std::size_t hash = 0;
  combine(hash, snippet.id);
  combine(hash, snippet.name);
  combine(hash, snippet.trigger);
  combine(hash, snippet.replacement);
  combine(hash, snippet.keywords.size());
  for (const std::string& keyword : snippet.keywords) combine(hash, keyword);
  combine(hash, snippet.category);
  combine(hash, static_cast<std::size_t>(snippet.isBuiltIn));
  return hash;
}

}  // namespace tessarin
