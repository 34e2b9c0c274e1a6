#include "platform/freedesktop/Json.h"

#include <cstdlib>

#include "base/DataError.h"

namespace tessarin::freedesktop {
namespace {

/// The library's own wording quotes the text around the error, which does not belong into a log.
const char* description(enum json_error_code code) {
  switch (code) {
    case json_error_stack_overflow:
      return "nested too deeply";
    case json_error_invalid_utf8:
      return "not valid UTF-8";
    case json_error_premature_end_of_input:
      return "ends too early";
    case json_error_end_of_input_expected:
      return "goes on after its end";
    case json_error_numeric_overflow:
      return "a number is too large";
    case json_error_null_byte_in_key:
      return "a member's name holds a zero character";
    case json_error_out_of_memory:
      return "too large";
    default:
      return "not valid JSON";
  }
}

std::string_view withoutByteOrderMark(std::string_view text) {
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

struct Free {
  void operator()(char* text) const { std::free(text); }
};

}  // namespace

JsonOwner parseJson(std::string_view text) {
  text = withoutByteOrderMark(text);
  json_error_t error;
  JsonOwner value(json_loadb(text.data(), text.size(), JSON_ALLOW_NUL, &error));
  if (!value) {
    throw DataError(std::string(description(json_error_code(&error))) + " (line " +
                    std::to_string(error.line) + ", column " + std::to_string(error.column) + ")");
  }
  return value;
}

JsonOwner makeJsonString(std::string_view text) {
  JsonOwner value(json_stringn(text.data(), text.size()));
  if (!value) throw DataError("a text is not valid UTF-8");
  return value;
}

std::string dumpJson(const json_t& value, std::size_t flags) {
  const std::unique_ptr<char, Free> text(json_dumps(&value, flags));
  if (!text) throw DataError("cannot be written as JSON");
  return text.get();
}

}  // namespace tessarin::freedesktop
