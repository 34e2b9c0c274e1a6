#include "main/Request.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

namespace tessarin {
namespace {

using Kind = Request::Kind;

constexpr std::array<std::pair<Kind, std::string_view>, 6> words{{{Kind::settings, "settings"},
                                                                  {Kind::toggle, "toggle"},
                                                                  {Kind::quit, "quit"},
                                                                  {Kind::trust, "trust"},
                                                                  {Kind::importFile, "import"},
                                                                  {Kind::exportFile, "export"}}};
constexpr std::string_view succeeded = "done ";
constexpr std::string_view failed = "failed ";

/// Control characters, and "%" itself, as "%0A".
std::string percentEncoded(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte >= 0x20 && c != '%') {
      result += c;
    } else {
      result += {'%', digits[byte / 16], digits[byte % 16]};
    }
  }
  return result;
}

std::optional<std::string> percentDecoded(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '%') {
      result += text[i];
      continue;
    }
    unsigned char byte = 0;
    const char* end = text.data() + std::min(i + 3, text.size());
    const auto [rest, error] = std::from_chars(text.data() + i + 1, end, byte, 16);
    if (error != std::errc() || rest != text.data() + i + 3) return std::nullopt;
    result += static_cast<char>(byte);
    i += 2;
  }
  return result;
}

bool takesFile(Kind kind) {
  return kind == Kind::importFile || kind == Kind::exportFile;
}

}  // namespace

std::string Request::encoded() const {
  const auto word = std::ranges::find(words, kind, &std::pair<Kind, std::string_view>::first);
  std::string line(word->second);
  if (takesFile(kind)) line += " " + percentEncoded(file.native());
  return line;
}

std::optional<Request> Request::decode(const std::string& line) {
  const auto space = line.find(' ');
  const auto word = std::ranges::find(words, std::string_view(line).substr(0, space),
                                      &std::pair<Kind, std::string_view>::second);
  if (word == words.end()) return std::nullopt;
  if (!takesFile(word->first))
    return space == std::string::npos ? std::optional(Request{word->first, {}}) : std::nullopt;
  const auto path =
      percentDecoded(space == std::string::npos ? "" : std::string_view(line).substr(space + 1));
  if (!path || !path->starts_with('/')) return std::nullopt;
  return Request{word->first, *path};
}

std::string Answer::encoded() const {
  return std::string(isSuccess ? succeeded : failed) + percentEncoded(text);
}

Answer Answer::decode(const std::string& line) {
  const bool isSuccess = line.starts_with(succeeded);
  if (!isSuccess && !line.starts_with(failed)) return {false, line};
  const auto text = percentDecoded(std::string_view(line).substr((isSuccess ? succeeded : failed).size()));
  return text ? Answer{isSuccess, *text} : Answer{false, line};
}

}  // namespace tessarin
