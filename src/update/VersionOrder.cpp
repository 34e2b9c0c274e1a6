#include "update/VersionOrder.h"

#include <algorithm>
#include <string>
#include <vector>

namespace tessarin {
namespace {

constexpr std::string_view separators = ".-_ ()~";

/// One piece of a version. The kinds stand in their order: a pre-release comes before the end of the text,
/// and that before a further number.
struct Segment {
  enum class Kind { letters, end, number };
  Kind kind = Kind::end;
  std::string text;  ///< a number without leading zeros, letters in lower case
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

bool isSeparator(char c) {
  return separators.find(c) != std::string_view::npos;
}

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

Segment number(std::string_view digits) {
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  return {Segment::Kind::number, std::string(digits)};
}

Segment letters(std::string_view text) {
  Segment segment{Segment::Kind::letters, std::string(text)};
  std::transform(text.begin(), text.end(), segment.text.begin(), lower);
  return segment;
}

/// What a version says, without what only decorates it.
std::string_view significant(std::string_view version) {
  version = version.substr(0, version.find('+'));
  if (version.size() > 1 && lower(version[0]) == 'v' && isDigit(version[1])) version.remove_prefix(1);
  return version;
}

void dropTrailingZeros(std::vector<Segment>& segments) {
  while (!segments.empty() && segments.back().kind == Segment::Kind::number && segments.back().text.empty()) {
    segments.pop_back();
  }
}

std::vector<Segment> segmentsOf(std::string_view version) {
  std::vector<Segment> segments;
  version = significant(version);
  while (!version.empty()) {
    const bool digits = isDigit(version[0]);
    const auto end = std::find_if(version.begin(), version.end(),
                                  [digits](char c) { return isSeparator(c) || isDigit(c) != digits; });
    const std::string_view piece = version.substr(0, static_cast<std::size_t>(end - version.begin()));
    version.remove_prefix(std::max<std::size_t>(piece.size(), 1));
    if (piece.empty()) continue;
    if (!digits) dropTrailingZeros(segments);
    segments.push_back(digits ? number(piece) : letters(piece));
  }
  dropTrailingZeros(segments);
  return segments;
}

std::weak_ordering compare(const Segment& a, const Segment& b) {
  if (a.kind != b.kind) return a.kind <=> b.kind;
  if (a.kind == Segment::Kind::number && a.text.size() != b.text.size()) {
    return a.text.size() <=> b.text.size();
  }
  return a.text <=> b.text;
}

}  // namespace

std::weak_ordering compareVersions(std::string_view a, std::string_view b) {
  const std::vector<Segment> first = segmentsOf(a);
  const std::vector<Segment> second = segmentsOf(b);
  const Segment end;
  for (std::size_t i = 0; i < std::max(first.size(), second.size()); ++i) {
    const auto order = compare(i < first.size() ? first[i] : end, i < second.size() ? second[i] : end);
    if (std::is_neq(order)) return order;
  }
  return std::weak_ordering::equivalent;
}

}  // namespace tessarin
