#include "main/Request.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <string_view>
#include <utility>

namespace tessarin {
namespace {

using Kind = Request::Kind;

struct Word {
  Kind kind;
  std::string_view word;
  std::size_t arguments;
};

constexpr std::array words{Word{Kind::settings, "settings", 0}, Word{Kind::toggle, "toggle", 0},
                           Word{Kind::quit, "quit", 0},         Word{Kind::trust, "trust", 0},
                           Word{Kind::importFile, "import", 1}, Word{Kind::exportFile, "export", 1},
                           Word{Kind::add, "add", 4},           Word{Kind::remove, "remove", 1}};
constexpr std::string_view succeeded = "done ";
constexpr std::string_view failed = "failed ";

/// Control characters, spaces and "%" itself, as "%0A".
std::string percentEncoded(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string result;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte > 0x20 && c != '%') {
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

/// What stands behind each of the spaces; none where one of it was not encoded by us.
std::optional<std::vector<std::string>> decodedArguments(std::string_view line) {
  std::vector<std::string> arguments;
  for (auto space = line.find(' '); space != std::string_view::npos;) {
    const auto next = line.find(' ', space + 1);
    const auto argument = percentDecoded(line.substr(space + 1, next - space - 1));
    if (!argument) return std::nullopt;
    arguments.push_back(*argument);
    space = next;
  }
  return arguments;
}

bool isPath(Kind kind) {
  return kind == Kind::importFile || kind == Kind::exportFile;
}

}  // namespace

std::string Request::encoded() const {
  std::string line(std::ranges::find(words, kind, &Word::kind)->word);
  for (const std::string& argument : arguments) line += " " + percentEncoded(argument);
  return line;
}

std::optional<Request> Request::decode(const std::string& line) {
  const auto word = std::ranges::find(words, std::string_view(line).substr(0, line.find(' ')), &Word::word);
  const auto arguments = decodedArguments(line);
  if (word == words.end() || !arguments || arguments->size() != word->arguments) return std::nullopt;
  if (isPath(word->kind) && !arguments->front().starts_with('/')) return std::nullopt;
  return Request{word->kind, *arguments};
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
