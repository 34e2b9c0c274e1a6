#include "model/SnippetCoding.h"

#include <jansson.h>

#include <cstdlib>
#include <memory>

#include "base/DataError.h"
#include "model/JsonRecords.h"

namespace tessarin {
namespace {

struct Release {
  void operator()(json_t* value) const { json_decref(value); }
  void operator()(char* text) const { std::free(text); }
};
using JsonOwner = std::unique_ptr<json_t, Release>;

constexpr std::array<JsonField<Snippet>, 7> snippetFields = {{{"id", &Snippet::id},
                                                              {"name", &Snippet::name},
                                                              {"trigger", &Snippet::trigger},
                                                              {"replacement", &Snippet::replacement},
                                                              {"keywords", &Snippet::keywords},
                                                              {"category", &Snippet::category},
                                                              {"isBuiltIn", &Snippet::isBuiltIn}}};

constexpr std::array<JsonField<EmojiData>, 5> emojiDataFields = {{{"name", &EmojiData::name},
                                                                  {"trigger", &EmojiData::trigger},
                                                                  {"replacement", &EmojiData::replacement},
                                                                  {"keywords", &EmojiData::keywords},
                                                                  {"category", &EmojiData::category}}};

JsonOwner makeText(const std::string& text) {
  JsonOwner value(json_stringn(text.data(), text.size()));
  if (!value) throw DataError("a text is not valid UTF-8");
  return value;
}

void setText(json_t& object, const char* key, const std::string& text) {
  json_object_set_new(&object, key, makeText(text).release());
}

JsonOwner makeObject(const Snippet& snippet) {
  JsonOwner object(json_object());
  setText(*object, "id", snippet.id);
  setText(*object, "name", snippet.name);
  setText(*object, "trigger", snippet.trigger);
  setText(*object, "replacement", snippet.replacement);
  JsonOwner keywords(json_array());
  for (const std::string& keyword : snippet.keywords) {
    json_array_append_new(keywords.get(), makeText(keyword).release());
  }
  json_object_set_new(object.get(), "keywords", keywords.release());
  setText(*object, "category", snippet.category);
  json_object_set_new(object.get(), "isBuiltIn", json_boolean(snippet.isBuiltIn));
  return object;
}

}  // namespace

std::vector<Snippet> decodeSnippets(std::string_view json) {
  return decodeJsonRecords(json, snippetFields);
}

std::vector<EmojiData> decodeEmojiData(std::string_view json) {
  return decodeJsonRecords(json, emojiDataFields);
}

std::string encodeSnippets(const std::vector<Snippet>& snippets, JsonStyle style) {
  const JsonOwner array(json_array());
  for (const Snippet& snippet : snippets) json_array_append_new(array.get(), makeObject(snippet).release());
  constexpr std::size_t pretty = JSON_INDENT(2) | JSON_SORT_KEYS;
  const std::size_t flags = JSON_ESCAPE_SLASH | (style == JsonStyle::pretty ? pretty : JSON_COMPACT);
  const std::unique_ptr<char, Release> text(json_dumps(array.get(), flags));
  if (!text) throw DataError("cannot be written as JSON");
  return text.get();
}

}  // namespace tessarin
