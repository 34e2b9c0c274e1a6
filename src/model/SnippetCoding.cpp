#include "model/SnippetCoding.h"

#include "base/Json.h"

namespace tessarin {
namespace {

Snippet readSnippet(const JsonRecord& record) {
  return {record.string("id"),          record.string("name"),      record.string("trigger"),
          record.string("replacement"), record.strings("keywords"), record.string("category"),
          record.boolean("isBuiltIn")};
}

EmojiData readEmojiData(const JsonRecord& record) {
  return {record.string("name"), record.string("trigger"), record.string("replacement"),
          record.strings("keywords"), record.string("category")};
}

void setText(json_t& object, const char* key, const std::string& text) {
  json_object_set_new(&object, key, makeJsonString(text).release());
}

JsonOwner makeObject(const Snippet& snippet) {
  JsonOwner object(json_object());
  setText(*object, "id", snippet.id);
  setText(*object, "name", snippet.name);
  setText(*object, "trigger", snippet.trigger);
  setText(*object, "replacement", snippet.replacement);
  JsonOwner keywords(json_array());
  for (const std::string& keyword : snippet.keywords) {
    json_array_append_new(keywords.get(), makeJsonString(keyword).release());
  }
  json_object_set_new(object.get(), "keywords", keywords.release());
  setText(*object, "category", snippet.category);
  json_object_set_new(object.get(), "isBuiltIn", json_boolean(snippet.isBuiltIn));
  return object;
}

}  // namespace

std::vector<Snippet> decodeSnippets(std::string_view json) {
  return readJsonArray<Snippet>(*parseJsonArray(json), readSnippet);
}

std::vector<EmojiData> decodeEmojiData(std::string_view json) {
  return readJsonArray<EmojiData>(*parseJsonArray(json), readEmojiData);
}

std::string encodeSnippets(const std::vector<Snippet>& snippets, JsonStyle style) {
  const JsonOwner array(json_array());
  for (const Snippet& snippet : snippets) json_array_append_new(array.get(), makeObject(snippet).release());
  constexpr std::size_t pretty = JSON_INDENT(2) | JSON_SORT_KEYS;
  return dumpJson(*array, JSON_ESCAPE_SLASH | (style == JsonStyle::pretty ? pretty : JSON_COMPACT));
}

}  // namespace tessarin
