#include "importers/AutoKeyPhrases.h"

#include <algorithm>
#include <array>
#include <optional>

#include "base/Translate.h"
#include "importers/ForeignText.h"
#include "model/JsonReader.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

using JsonKind = JsonReader::Kind;

/// What a description tells.
struct PhraseDescription {
  std::string type;
  std::string description;
  std::string sendMode = "kb";  ///< how it is written: by keys, or pasted in one of several ways
  std::vector<std::string> abbreviations;
  bool hasHotkey = false;
  bool hasFilter = false;
};

/// A text, or nothing where something else stands.
std::string jsonText(JsonReader& reader) {
  if (reader.kind() == JsonKind::string) return reader.string();
  reader.skip();
  return {};
}

/// Calls `readMember(key)` for each member of an object; anything else has none.
template <class ReadMember>
void jsonMembers(JsonReader& reader, ReadMember readMember) {
  if (reader.kind() != JsonKind::object) return reader.skip();
  reader.members(readMember);
}

void readAbbreviations(JsonReader& reader, std::vector<std::string>& abbreviations) {
  jsonMembers(reader, [&](const std::string& key) {
    if (key != "abbreviations" || reader.kind() != JsonKind::array) return reader.skip();
    reader.elements([&] { abbreviations.push_back(jsonText(reader)); });
  });
}

/// Whether an object has a text in that member.
bool jsonHasText(JsonReader& reader, std::string_view wanted) {
  bool has = false;
  jsonMembers(reader, [&](const std::string& key) {
    if (key != wanted) return reader.skip();
    has = !jsonText(reader).empty();
  });
  return has;
}

PhraseDescription decodedPhrase(std::string_view json) {
  JsonReader reader(json);
  if (reader.kind() != JsonKind::object) throw DataError("the top level is not an object");
  PhraseDescription result;
  reader.members([&](const std::string& key) {
    if (key == "type") {
      result.type = jsonText(reader);
    } else if (key == "description") {
      result.description = jsonText(reader);
    } else if (key == "sendMode") {
      result.sendMode = jsonText(reader);
    } else if (key == "abbreviation") {
      readAbbreviations(reader, result.abbreviations);
    } else if (key == "hotkey") {
      result.hasHotkey = jsonHasText(reader, "hotKey");
    } else if (key == "filter") {
      result.hasFilter = jsonHasText(reader, "regex");
    } else {
      reader.skip();
    }
  });
  reader.end();
  return result;
}

bool isNumbered(std::string_view name, std::string_view word) {
  return name.size() > word.size() && name.starts_with(word) &&
         name.find_first_not_of("0123456789", word.size()) == std::string_view::npos;
}

/// Whether <NAME> in a phrase that is typed is a key.
bool isKey(std::string_view name) {
  constexpr std::array<std::string_view, 38> keys{
      "left",         "right",   "up",        "down",         "backspace", "tab",     "enter",  "scroll_lock",
      "menu",         "pause",   "ctrl",      "print_screen", "alt",       "alt_gr",  "shift",  "super",
      "hyper",        "meta",    "capslock",  "numlock",      "escape",    "insert",  "delete", "home",
      "end",          "page_up", "page_down", "np_insert",    "np_delete", "np_home", "np_end", "np_page_up",
      "np_page_down", "np_left", "np_right",  "np_up",        "np_down",   "np_5"};
  constexpr std::array<std::string_view, 4> sums{"np_divide", "np_multiply", "np_add", "np_subtract"};
  return std::ranges::find(keys, name) != keys.end() || std::ranges::find(sums, name) != sums.end() ||
         isNumbered(name, "f") || isNumbered(name, "code");
}

/// Reads the text of a phrase piece by piece.
class PhraseText {
 public:
  PhraseText(bool isTyped, const ImportTerms& terms) : isTyped_(isTyped), terms_(terms) {}

  /// Why the phrase has no equal; none where it has.
  std::optional<std::string> read(std::string_view phrase) {
    while (!phrase.empty()) {
      const std::size_t open = std::min(phrase.find('<'), phrase.size());
      text_.addLiteral(phrase.substr(0, open));
      phrase.remove_prefix(open);
      const std::size_t close = phrase.find_first_of("<>", 1);
      if (close == std::string_view::npos) {
        text_.addLiteral(phrase);
        break;
      }
      const bool isToken = phrase[close] == '>' && close > 1;
      const std::string_view part = phrase.substr(0, close + (phrase[close] == '>' ? 1 : 0));
      if (!isToken) {
        text_.addLiteral(part);
      } else if (auto problem = takeToken(part)) {
        return problem;
      }
      phrase.remove_prefix(part.size());
    }
    if (text_.wouldBeFilledIn()) return translate("Importers", "its text would be filled in here");
    return std::nullopt;
  }

  const std::string& text() const { return text_.text(); }

 private:
  std::optional<std::string> takeToken(std::string_view token) {
    const std::string_view inside = token.substr(1, token.size() - 2);
    const std::string_view name = inside.substr(0, inside.find(' '));
    if (name == "date") return takeDate(inside);
    if (name == "cursor") return translate("Importers", "it places the caret");
    if (name == "script") return translate("Importers", "it runs a script");
    if (name == "file") return translate("Importers", "it inserts a file");
    if (isTyped_ && isKey(text::lowercased(inside)))
      return filledIn(translate("Importers", "it presses the key %1"), {std::string(token)});
    text_.addLiteral(token);
    return std::nullopt;
  }

  std::optional<std::string> takeDate(std::string_view inside) {
    constexpr std::string_view argument = "date format=";
    const auto variables = inside.starts_with(argument)
                               ? templateForDateFormat(inside.substr(argument.size()), terms_)
                               : std::nullopt;
    if (!variables) return translate("Importers", "it writes a date in another form");
    text_.addVariables(*variables);
    return std::nullopt;
  }

  bool isTyped_;
  const ImportTerms& terms_;
  ForeignText text_;
};

}  // namespace

ForeignSnippets readAutoKeyPhrase(const std::string& where, std::string_view json, std::string_view text,
                                  const ImportTerms& terms) {
  const PhraseDescription description = decodedPhrase(json);
  ForeignSnippets result;
  if (description.type != "phrase") {
    result.leaveOut(where, translate("Importers", "it is a script"));
    return result;
  }
  if (description.abbreviations.empty()) {
    result.leaveOut(where, description.hasHotkey ? translate("Importers", "it has a hotkey only")
                                                 : translate("Importers", "it has no abbreviation"));
    return result;
  }
  PhraseText phrase(description.sendMode == "kb", terms);
  if (const auto problem = phrase.read(withLineFeeds(requireUtf8(text)))) {
    result.leaveOut(where, *problem);
    return result;
  }
  for (const std::string& abbreviation : description.abbreviations)
    result.take({shownAt(where, abbreviation), abbreviation, phrase.text(), description.description, {}},
                terms);
  if (description.hasFilter && !result.snippets.empty())
    result.changed.push_back({where, translate("Importers", "it works in every window here")});
  return result;
}

}  // namespace tessarin
