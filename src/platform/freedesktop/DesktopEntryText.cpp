#include "platform/freedesktop/DesktopEntryText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessarin::freedesktop {
namespace {

constexpr std::string_view mainGroup = "[Desktop Entry]";
constexpr std::array<std::pair<char, char>, 5> escapes{
    {{' ', 's'}, {'\n', 'n'}, {'\t', 't'}, {'\r', 'r'}, {'\\', '\\'}}};

std::string_view keyOf(std::string_view line) {
  line = trimmed(line);
  if (line.empty() || line.front() == '#' || line.front() == '[') return {};
  const auto equals = line.find('=');
  return equals == std::string_view::npos ? std::string_view() : trimmed(line.substr(0, equals));
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::string unescaped(std::string_view value) {
  std::string result;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] != '\\' || i + 1 == value.size()) {
      result += value[i];
      continue;
    }
    ++i;
    const auto known = std::ranges::find(escapes, value[i], &std::pair<char, char>::second);
    result += known == escapes.end() ? value[i] : known->first;
  }
  return result;
}

std::string escaped(std::string_view text) {
  std::string result;
  for (const char c : text) {
    const auto known = std::ranges::find(escapes, c, &std::pair<char, char>::first);
    // Only the blanks at either end would be lost; those within are easier to read as they are.
    if (known == escapes.end() || (c == ' ' && !result.empty())) {
      result += c;
    } else {
      result += {'\\', known->second};
    }
  }
  if (result.ends_with(' ')) result.replace(result.size() - 1, 1, "\\s");
  return result;
}

std::string quotedArgument(std::string_view argument) {
  const bool isPlain = argument.find_first_of(" \t\n\"'\\><~|&;$*?#()`") == std::string_view::npos;
  std::string result;
  for (const char c : argument) {
    if (std::string_view("\"`$\\").find(c) != std::string_view::npos) result += '\\';
    if (c == '%') result += '%';
    result += c;
  }
  return isPlain && !argument.empty() ? result : '"' + result + '"';
}

DesktopEntryText::DesktopEntryText(std::string_view content) {
  while (!content.empty()) {
    const auto end = content.find('\n');
    lines_.emplace_back(content.substr(0, end));
    content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
  }
  auto header = std::ranges::find_if(lines_, [](const auto& line) { return trimmed(line) == mainGroup; });
  if (header == lines_.end()) header = lines_.insert(lines_.end(), std::string(mainGroup));
  begin_ = static_cast<std::size_t>(header - lines_.begin()) + 1;
}

std::size_t DesktopEntryText::end() const {
  const auto next = std::find_if(lines_.begin() + static_cast<std::ptrdiff_t>(begin_), lines_.end(),
                                 [](const auto& line) { return trimmed(line).starts_with('['); });
  return static_cast<std::size_t>(next - lines_.begin());
}

DesktopEntryText::Lines::const_iterator DesktopEntryText::find(std::string_view key) const {
  const auto last = lines_.begin() + static_cast<std::ptrdiff_t>(end());
  const auto found = std::find_if(lines_.begin() + static_cast<std::ptrdiff_t>(begin_), last,
                                  [&](const auto& line) { return keyOf(line) == key; });
  return found == last ? lines_.end() : found;
}

std::optional<std::string> DesktopEntryText::value(std::string_view key) const {
  const auto line = find(key);
  if (line == lines_.end()) return std::nullopt;
  return unescaped(trimmed(std::string_view(*line).substr(line->find('=') + 1)));
}

void DesktopEntryText::set(std::string_view key, std::string_view text) {
  std::string line = std::string(key) + "=" + escaped(text);
  if (const auto known = find(key); known != lines_.end()) {
    lines_[static_cast<std::size_t>(known - lines_.begin())] = std::move(line);
    return;
  }
  std::size_t place = end();
  while (place > begin_ && trimmed(lines_[place - 1]).empty()) --place;
  lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(place), std::move(line));
}

void DesktopEntryText::remove(std::string_view key) {
  for (auto line = find(key); line != lines_.end(); line = find(key)) lines_.erase(line);
}

std::vector<std::string> DesktopEntryText::keys() const {
  std::vector<std::string> keys;
  for (std::size_t i = begin_; i < end(); ++i) {
    if (const auto key = keyOf(lines_[i]); !key.empty()) keys.emplace_back(key);
  }
  return keys;
}

bool DesktopEntryText::hasMore() const {
  const auto isMore = [](const std::string& line) {
    return !trimmed(line).empty() && trimmed(line) != mainGroup && keyOf(line).empty();
  };
  return begin_ > 1 || std::ranges::any_of(lines_, isMore);
}

std::string DesktopEntryText::content() const {
  std::string content;
  for (const auto& line : lines_) content += line + "\n";
  return content;
}

}  // namespace tessarin::freedesktop
