#include "importers/ForeignText.h"

#include <algorithm>
#include <array>
#include <utility>

#include "model/TemplateVariables.h"

namespace tessarin {
namespace {

using DateField = std::pair<std::string_view, std::string_view>;

/// Unicode's letters, and what strftime calls the same.
constexpr std::array<DateField, 12> dateFields{{{"dd", "%d"},
                                                {"d", "%-d"},
                                                {"MM", "%m"},
                                                {"M", "%-m"},
                                                {"yy", "%y"},
                                                {"y", "%Y"},
                                                {"yyyy", "%Y"},
                                                {"HH", "%H"},
                                                {"H", "%-H"},
                                                {"hh", "%I"},
                                                {"h", "%-I"},
                                                {"mm", "%M"}}};
/// strftime's short forms.
constexpr std::array<DateField, 3> shortForms{{{"%F", "%Y-%m-%d"}, {"%D", "%m/%d/%y"}, {"%R", "%H:%M"}}};

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// The strftime format of a Unicode pattern; none where it has a field or a quoted text that we do not know.
std::optional<std::string> strftimeFormat(std::string_view pattern) {
  std::string format;
  while (!pattern.empty()) {
    const char first = pattern[0];
    if (first == '\'' || first == '%') return std::nullopt;
    const std::size_t length =
        isLetter(first) ? std::min(pattern.find_first_not_of(first), pattern.size()) : 1;
    const auto part = pattern.substr(0, length);
    const auto field = std::ranges::find(dateFields, part, &DateField::first);
    if (field == dateFields.end() && isLetter(first)) return std::nullopt;
    format += field == dateFields.end() ? part : field->second;
    pattern.remove_prefix(length);
  }
  return format;
}

void replaceEach(std::string& text, std::string_view part, std::string_view by) {
  for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + by.size()))
    text.replace(at, part.size(), by);
}

std::size_t countOf(std::string_view text, std::string_view part) {
  std::size_t found = 0;
  for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + part.size()))
    ++found;
  return found;
}

std::size_t countVariables(std::string_view text) {
  std::size_t found = 0;
  for (const std::string_view variable : templateVariables) found += countOf(text, variable);
  return found;
}

}  // namespace

std::optional<std::string> templateForDateFormat(std::string_view format, const ImportTerms& terms) {
  constexpr std::size_t longestFormat = 200;
  // A percent sign of its own would look like the beginning of what stands behind it.
  if (format.empty() || format.size() > longestFormat || format.find("%%") != std::string_view::npos ||
      countVariables(format) > 0)
    return std::nullopt;
  std::string text(format);
  for (const auto& [shortForm, meaning] : shortForms) replaceEach(text, shortForm, meaning);
  for (const auto& [pattern, variable] :
       {DateField{terms.patterns.dateTime, "{{datetime}}"}, DateField{terms.patterns.date, "{{date}}"},
        DateField{terms.patterns.time, "{{time}}"}}) {
    const auto same = strftimeFormat(pattern);
    if (same && !same->empty()) replaceEach(text, *same, variable);
  }
  if (text.find('%') != std::string::npos) return std::nullopt;
  return text;
}

void ForeignText::addLiteral(std::string_view text) {
  if (text_.size() + text.size() > largestImport) throw DataError("holds more than could be meant");
  text_ += text;
}

void ForeignText::addVariables(std::string_view variables) {
  addLiteral(variables);
  variables_ += countVariables(variables);
}

bool ForeignText::wouldBeFilledIn() const {
  return countVariables(text_) > variables_;
}

}  // namespace tessarin
