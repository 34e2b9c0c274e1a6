#include "base/Json.h"

#include <cstdlib>

#include "base/DataError.h"

namespace tessarin {
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
    case json_error_null_character:
    case json_error_null_byte_in_key:
      return "holds a zero character";
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
  JsonOwner value(json_loadb(text.data(), text.size(), 0, &error));
  if (!value) {
    throw DataError(std::string(description(json_error_code(&error))) + " (line " +
                    std::to_string(error.line) + ", column " + std::to_string(error.column) + ")");
  }
  return value;
}

JsonOwner parseJsonArray(std::string_view text) {
  JsonOwner value = parseJson(text);
  if (!json_is_array(value.get())) throw DataError("the top level is not an array");
  return value;
}

JsonOwner makeJsonString(std::string_view text) {
  if (text.find('\0') != std::string_view::npos) throw DataError("a text holds a zero character");
  JsonOwner value(json_stringn(text.data(), text.size()));
  if (!value) throw DataError("a text is not valid UTF-8");
  return value;
}

std::string dumpJson(const json_t& value, std::size_t flags) {
  const std::unique_ptr<char, Free> text(json_dumps(&value, flags));
  if (!text) throw DataError("cannot be written as JSON");
  return text.get();
}

JsonRecord::JsonRecord(const json_t* value, std::size_t index) : object_(value), number_(index + 1) {
  if (!json_is_object(value)) fail("is not an object");
}

void JsonRecord::fail(const std::string& problem) const {
  throw DataError("entry " + std::to_string(number_) + " " + problem);
}

const json_t& JsonRecord::member(const char* key) const {
  const json_t* value = json_object_get(object_, key);
  if (!value) fail("lacks \"" + std::string(key) + "\"");
  return *value;
}

std::string JsonRecord::string(const char* key) const {
  const json_t& value = member(key);
  if (!json_is_string(&value)) fail("has no text in \"" + std::string(key) + "\"");
  return {json_string_value(&value), json_string_length(&value)};
}

std::vector<std::string> JsonRecord::strings(const char* key) const {
  const json_t& value = member(key);
  if (!json_is_array(&value)) fail("has no list in \"" + std::string(key) + "\"");
  std::vector<std::string> texts;
  texts.reserve(json_array_size(&value));
  for (std::size_t i = 0; i < json_array_size(&value); ++i) {
    const json_t* text = json_array_get(&value, i);
    if (!json_is_string(text)) fail("has something other than texts in \"" + std::string(key) + "\"");
    texts.emplace_back(json_string_value(text), json_string_length(text));
  }
  return texts;
}

bool JsonRecord::boolean(const char* key) const {
  const json_t& value = member(key);
  if (!json_is_boolean(&value)) fail("has neither true nor false in \"" + std::string(key) + "\"");
  return json_is_true(&value);
}

double JsonRecord::number(const char* key) const {
  const json_t& value = member(key);
  if (!json_is_number(&value)) fail("has no number in \"" + std::string(key) + "\"");
  return json_number_value(&value);
}

}  // namespace tessarin
