#include "model/SnippetDraft.h"

#include <unicode/uchar.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>

#include "base/Uuid.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

/// The first scalar decides: what follows in the same character are marks that belong to it.
bool belongsInTrigger(std::string_view character) {
  if (character == "_" || character == "-") return true;
  std::int32_t at = 0;
  UChar32 base = 0;
  U8_NEXT(character.data(), at, static_cast<std::int32_t>(character.size()), base);
  return base >= 0 && (u_hasBinaryProperty(base, UCHAR_ALPHABETIC) != 0 ||
                       u_getIntPropertyValue(base, UCHAR_NUMERIC_TYPE) != U_NT_NONE);
}

/// Spaces and tabs of any width; line breaks are none.
std::string_view trimmed(std::string_view text) {
  const auto data = text.data();
  auto end = static_cast<std::int32_t>(text.size());
  std::int32_t start = 0;
  UChar32 scalar = 0;
  for (std::int32_t at = 0; at < end; start = at) {
    U8_NEXT(data, at, end, scalar);
    if (scalar < 0 || u_isblank(scalar) == 0) break;
  }
  for (std::int32_t at = end; at > start; end = at) {
    U8_PREV(data, start, at, scalar);
    if (scalar < 0 || u_isblank(scalar) == 0) break;
  }
  return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start));
}

std::string joined(const std::vector<std::string>& keywords) {
  std::string line;
  for (const std::string& keyword : keywords) {
    if (&keyword != &keywords.front()) line += ", ";
    line += keyword;
  }
  return line;
}

}  // namespace

SnippetDraft SnippetDraft::of(const Snippet& snippet) {
  return {snippet.name, filteredTrigger(snippet.trigger), snippet.replacement, joined(snippet.keywords)};
}

bool SnippetDraft::isValid() const {
  return !name.empty() && !trigger.empty() && !replacement.empty();
}

Snippet SnippetDraft::makeSnippet(const std::optional<std::string>& id) const {
  return {id ? *id : makeUuid(), name, trigger, replacement, parseKeywords(keywords), customCategory, false};
}

std::string filteredTrigger(std::string_view text) {
  std::string kept;
  while (!text.empty()) {
    const std::string character = text::firstCharacter(text);
    if (belongsInTrigger(character)) kept += character;
    text.remove_prefix(character.size());
  }
  return kept;
}

std::vector<std::string> parseKeywords(std::string_view line) {
  std::vector<std::string> keywords;
  while (!line.empty()) {
    const std::size_t comma = std::min(line.find(','), line.size());
    const std::string_view keyword = trimmed(line.substr(0, comma));
    if (!keyword.empty()) keywords.emplace_back(keyword);
    line.remove_prefix(std::min(comma + 1, line.size()));
  }
  return keywords;
}

}  // namespace tessarin
