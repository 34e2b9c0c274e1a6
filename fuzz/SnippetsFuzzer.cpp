#include <jansson.h>

#include <algorithm>
#include <memory>
#include <tuple>

#include "Check.h"
#include "model/JsonReader.h"
#include "model/SnippetCoding.h"
#include "model/SnippetDraft.h"

namespace tessarin::fuzz {
namespace {

struct Release {
  void operator()(json_t* value) const { json_decref(value); }
};

/// Whether another reader takes it, up to what it holds for too large or too deep, and to zero characters in
/// the names of members, which it cannot hold.
std::optional<bool> isJsonElsewhere(std::string_view text) {
  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  json_error_t error{};
  const std::unique_ptr<json_t, Release> value(
      json_loadb(text.data(), text.size(), JSON_DECODE_ANY | JSON_ALLOW_NUL, &error));
  if (value) return true;
  const auto code = json_error_code(&error);
  if (code == json_error_numeric_overflow || code == json_error_stack_overflow ||
      code == json_error_null_byte_in_key) {
    return std::nullopt;
  }
  return false;
}

/// Whether ours takes it, up to the same.
std::optional<bool> isJson(std::string_view text) {
  try {
    JsonReader reader(text);
    reader.skip();
    reader.end();
    return true;
  } catch (const DataError& error) {
    const std::string_view problem = error.what();
    if (problem.starts_with("a number is out of range") || problem.starts_with("nested")) return std::nullopt;
    return false;
  }
}

/// To the byte: snippets compare by what their texts mean.
auto bytesOf(const Snippet& s) {
  return std::tie(s.id, s.name, s.trigger, s.replacement, s.keywords, s.category, s.isBuiltIn);
}

bool isSame(const std::vector<Snippet>& a, const std::vector<Snippet>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](const Snippet& x, const Snippet& y) { return bytesOf(x) == bytesOf(y); });
}

void checkDraft(const Snippet& snippet) {
  const SnippetDraft draft = SnippetDraft::of(snippet);
  check(filteredTrigger(draft.trigger) == draft.trigger, "a filtered trigger passes the filter");
  const Snippet edited = draft.makeSnippet("id");
  check(bytesOf(SnippetDraft::of(edited).makeSnippet("id")) == bytesOf(edited),
        "editing without a change changes nothing");
}

void readAndWrite(std::string_view text) {
  const auto snippets = unlessRefused([&] { return decodeSnippets(text); });
  if (!snippets) return;
  for (const JsonStyle style : {JsonStyle::compact, JsonStyle::pretty}) {
    check(isSame(decodeSnippets(encodeSnippets(*snippets, style)), *snippets),
          "snippets survive writing and reading");
  }
  for (const Snippet& snippet : *snippets) checkDraft(snippet);
}

}  // namespace
}  // namespace tessarin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarin;
  const std::string_view text = fuzz::asText(data, size);
  fuzz::readAndWrite(text);
  fuzz::unlessRefused([&] { return decodeEmojiData(text); });
  const auto elsewhere = fuzz::isJsonElsewhere(text);
  const auto here = fuzz::isJson(text);
  const bool hasZero = text.find('\0') != std::string_view::npos;  // the end of a text to the other one
  fuzz::check(hasZero || !elsewhere || !here || *elsewhere == *here, "JSON is what the grammar says");
  return 0;
}
