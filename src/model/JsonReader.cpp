#include "model/JsonReader.h"

#include <algorithm>
#include <charconv>

#include "base/DataError.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

/// Far more than any file of ours has, far less than the stack bears.
constexpr int deepestNesting = 500;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

void appendUtf8(std::string& text, std::uint32_t scalar) {
  const auto tail = [&](int shift) { text += static_cast<char>(0x80 | ((scalar >> shift) & 0x3F)); };
  if (scalar < 0x80) {
    text += static_cast<char>(scalar);
  } else if (scalar < 0x800) {
    text += static_cast<char>(0xC0 | (scalar >> 6));
    tail(0);
  } else if (scalar < 0x10000) {
    text += static_cast<char>(0xE0 | (scalar >> 12));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xF0 | (scalar >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

/// The length of the digits at the front; none is no number.
std::size_t digits(std::string_view text) {
  return static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), isDigit) - text.begin());
}

}  // namespace

JsonReader::JsonReader(std::string_view text) : text_(text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (text_.starts_with(byteOrderMark)) text_.remove_prefix(byteOrderMark.size());
  if (!text::isValidUtf8(text_)) throw DataError("not valid UTF-8");
}

void JsonReader::fail(const char* problem) const {
  const std::string_view before = text_.substr(0, at_);
  const auto line = std::count(before.begin(), before.end(), '\n') + 1;
  const std::size_t lineStart = before.rfind('\n') + 1;  // npos + 1 is the start of the text
  throw DataError(std::string(problem) + " (line " + std::to_string(line) + ", column " +
                  std::to_string(at_ - lineStart + 1) + ")");
}

char JsonReader::peek() {
  at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size());
  if (at_ == text_.size()) fail("ends too early");
  return text_[at_];
}

void JsonReader::expect(char c) {
  if (peek() != c) fail("not valid JSON");
  ++at_;
}

void JsonReader::literal(std::string_view word) {
  if (!text_.substr(at_).starts_with(word)) fail("not valid JSON");
  at_ += word.size();
}

JsonReader::Kind JsonReader::kind() {
  const char c = peek();
  if (c == '{') return Kind::object;
  if (c == '[') return Kind::array;
  if (c == '"') return Kind::string;
  if (c == '-' || isDigit(c)) return Kind::number;
  if (c == 't' || c == 'f') return Kind::boolean;
  if (c == 'n') return Kind::null;
  fail("not valid JSON");
}

bool JsonReader::enter(char open, char close) {
  expect(open);
  if (++depth_ > deepestNesting) fail("nested too deeply");
  if (peek() != close) return true;
  return next(close);
}

bool JsonReader::next(char close) {
  if (peek() == close) {
    ++at_;
    --depth_;
    return false;
  }
  expect(',');
  return true;
}

std::string JsonReader::key() {
  std::string name = string();
  expect(':');
  return name;
}

std::string JsonReader::string() {
  expect('"');
  std::string result;
  for (;;) {
    std::size_t stop = at_;
    while (stop < text_.size() && text_[stop] != '"' && text_[stop] != '\\' &&
           static_cast<unsigned char>(text_[stop]) >= 0x20) {
      ++stop;
    }
    result.append(text_, at_, stop - at_);
    at_ = stop;
    if (at_ == text_.size()) fail("ends too early");
    const char c = text_[at_];
    if (c != '"' && c != '\\') fail("not valid JSON");
    ++at_;
    if (c == '"') return result;
    appendEscape(result);
  }
}

void JsonReader::appendEscape(std::string& result) {
  constexpr std::string_view letters = "\"\\/bfnrt";
  constexpr std::string_view meanings = "\"\\/\b\f\n\r\t";
  if (at_ == text_.size()) fail("ends too early");
  const char letter = text_[at_++];
  if (const std::size_t found = letters.find(letter); found != std::string_view::npos) {
    result += meanings[found];
    return;
  }
  if (letter != 'u') fail("not valid JSON");
  std::uint32_t scalar = hexQuad();
  if (scalar >= 0xD800 && scalar < 0xDC00) {
    literal("\\u");
    const std::uint32_t low = hexQuad();
    if (low < 0xDC00 || low > 0xDFFF) fail("half of a surrogate pair");
    scalar = 0x10000 + ((scalar - 0xD800) << 10) + (low - 0xDC00);
  } else if (scalar >= 0xDC00 && scalar <= 0xDFFF) {
    fail("half of a surrogate pair");
  }
  appendUtf8(result, scalar);
}

std::uint32_t JsonReader::hexQuad() {
  const std::string_view quad = text_.substr(at_, 4);
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(quad.data(), quad.data() + quad.size(), value, 16);
  if (error != std::errc() || end != quad.data() + 4) fail("not valid JSON");
  at_ += 4;
  return value;
}

bool JsonReader::boolean() {
  const bool value = peek() == 't';
  literal(value ? "true" : "false");
  return value;
}

/// The number by the grammar: sign, digits without a leading zero, fraction, exponent.
std::string_view JsonReader::numberToken() const {
  const std::string_view rest = text_.substr(at_);
  std::size_t length = rest.starts_with('-') ? 1 : 0;
  const auto takeDigits = [&] {
    const std::size_t count = digits(rest.substr(length));
    if (count == 0) fail("not valid JSON");
    length += count;
    return count;
  };
  const std::size_t first = length;
  if (takeDigits() > 1 && rest[first] == '0') fail("not valid JSON");
  if (rest.substr(length).starts_with('.')) {
    ++length;
    takeDigits();
  }
  if (length < rest.size() && (rest[length] == 'e' || rest[length] == 'E')) {
    ++length;
    if (length < rest.size() && (rest[length] == '+' || rest[length] == '-')) ++length;
    takeDigits();
  }
  return rest.substr(0, length);
}

double JsonReader::number() {
  peek();
  const std::string_view token = numberToken();
  double value = 0;
  if (std::from_chars(token.data(), token.data() + token.size(), value).ec != std::errc()) {
    fail("a number is out of range");
  }
  at_ += token.size();
  return value;
}

bool JsonReader::isInteger() {
  peek();
  return numberToken().find_first_of(".eE") == std::string_view::npos;
}

std::int64_t JsonReader::integer() {
  if (!isInteger()) fail("not an integer");
  const std::string_view token = numberToken();
  std::int64_t value = 0;
  if (std::from_chars(token.data(), token.data() + token.size(), value).ec != std::errc()) {
    fail("a number is out of range");
  }
  at_ += token.size();
  return value;
}

void JsonReader::skip() {
  switch (kind()) {
    case Kind::object:
      return members([this](const std::string&) { skip(); });
    case Kind::array:
      return elements([this] { skip(); });
    case Kind::string:
      string();
      return;
    case Kind::number:
      at_ += numberToken().size();  // whatever its size
      return;
    case Kind::boolean:
      boolean();
      return;
    case Kind::null:
      return literal("null");
  }
}

void JsonReader::end() {
  at_ = std::min(text_.find_first_not_of(" \t\r\n", at_), text_.size());
  if (at_ != text_.size()) fail("goes on after its end");
}

}  // namespace tessarin
