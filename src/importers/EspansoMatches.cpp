#include "importers/EspansoMatches.h"

#include <yaml-cpp/eventhandler.h>
#include <yaml-cpp/yaml.h>

#include <algorithm>
#include <cctype>
#include <map>
#include <optional>
#include <sstream>

#include "base/Translate.h"
#include "importers/ForeignText.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

struct EspansoVariable {
  std::string type;
  std::map<std::string, std::string> parameters;  ///< those that are texts
  bool hasMore = false;                           ///< lists and the like
};
using EspansoVariables = std::map<std::string, EspansoVariable>;

struct EspansoMatch {
  std::string where;
  std::vector<std::string> triggers;
  std::string text;
  std::string label;
  std::vector<std::string> searchTerms;
  EspansoVariables variables;
  bool carriesCase = false;
  std::string problem;  ///< why it has no equal; empty where it may have one
};

/// Why a match with that member has no equal here; empty where it may have.
std::string problemOfMember(const std::string& member) {
  if (member == "regex") return translate("Importers", "it has a regular expression");
  if (member == "form") return translate("Importers", "it asks by a form");
  if (member == "image_path") return translate("Importers", "it inserts an image");
  if (member == "html" || member == "markdown") return translate("Importers", "its text is formatted");
  return {};
}

/// Parses and keeps nothing.
struct IgnoredEvents final : YAML::EventHandler {
  void OnDocumentStart(const YAML::Mark&) override {}
  void OnDocumentEnd() override {}
  void OnNull(const YAML::Mark&, YAML::anchor_t) override {}
  void OnAlias(const YAML::Mark&, YAML::anchor_t) override {}
  void OnScalar(const YAML::Mark&, const std::string&, YAML::anchor_t, const std::string&) override {}
  void OnSequenceStart(const YAML::Mark&, const std::string&, YAML::anchor_t,
                       YAML::EmitterStyle::value) override {}
  void OnSequenceEnd() override {}
  void OnMapStart(const YAML::Mark&, const std::string&, YAML::anchor_t, YAML::EmitterStyle::value) override {
  }
  void OnMapEnd() override {}
};

/// What stands behind the first document would be lost; the library, asked for all of them, makes documents
/// without end of some texts. The end that is written here shows up a quotation that is never closed.
void requireOneDocument(const std::string& text) {
  std::istringstream stream(text + (text.ends_with('\n') ? "...\n" : "\n...\n"));
  YAML::Parser parser(stream);
  IgnoredEvents events;
  parser.HandleNextDocument(events);
  if (parser.HandleNextDocument(events)) throw DataError("holds more than one document");
}

/// The parser makes a single byte, as of Latin 1, of the escapes "\_" and "\N"; all else is UTF-8.
std::string mendedScalar(const std::string& scalar) {
  if (text::isValidUtf8(scalar)) return scalar;
  std::string mended;
  for (std::size_t i = 0; i < scalar.size();) {
    const auto lead = static_cast<unsigned char>(scalar[i]);
    const std::size_t bytes = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (lead >= 0x80 && lead < 0xC0) mended += '\xC2';
    mended.append(scalar, i, bytes);
    i += bytes;
  }
  return mended;
}

/// Walks through the trees of one file. Aliases make them look larger than they are, without end if they lead
/// in a circle, so all that is looked at is counted.
class MatchReader {
 public:
  explicit MatchReader(const MatchFile& file) : file_(file) {}

  void read() {
    const YAML::Node top = document();
    if (!top.IsNull() && !top.IsMap()) throw DataError("the top level is not a list of members");
    membersOf(top, [&](const std::string& key, const YAML::Node& value) {
      if (key == "matches") elementsOf(value, [&](const YAML::Node& match) { readMatch(match); });
      if (key == "global_vars") readVariables(value, globals_);
    });
  }

  EspansoVariables& globals() { return globals_; }
  std::vector<EspansoMatch>& matches() { return matches_; }

 private:
  YAML::Node document() {
    // YAML allows no other control characters, and the parser takes one of them for the end.
    const auto isControl = [](char c) {
      return static_cast<unsigned char>(c) < 0x20 && c != '\t' && c != '\r' && c != '\n';
    };
    std::string text(requireUtf8(file_.yaml));
    if (text.size() > largestMatchFile) throw DataError("the file is larger than 8 MB");
    if (std::ranges::any_of(text, isControl)) throw DataError("not valid YAML");
    try {
      requireOneDocument(text);
      return YAML::Load(text);
    } catch (const YAML::Exception& error) {
      if (error.mark.is_null()) throw DataError("not valid YAML");
      // What is missing at the end is noticed behind it.
      const auto lines = std::count(text.begin(), text.end(), '\n') + (text.ends_with('\n') ? 0 : 1);
      failAtLine("not valid YAML",
                 static_cast<std::size_t>(std::min<std::ptrdiff_t>(error.mark.line + 1, lines)));
    }
  }

  void look(std::size_t atBytes) {
    constexpr std::size_t aNode = 16;
    if (atBytes + aNode > left_) throw DataError("holds more than could be meant");
    left_ -= atBytes + aNode;
  }

  std::string textOf(const YAML::Node& node) {
    if (!node.IsScalar()) return {};
    look(node.Scalar().size());
    return mendedScalar(node.Scalar());
  }

  template <class Visit>
  void elementsOf(const YAML::Node& node, Visit visit) {
    if (!node.IsSequence()) return;
    for (const YAML::Node& element : node) {
      look(0);
      visit(element);
    }
  }

  template <class Visit>
  void membersOf(const YAML::Node& node, Visit visit) {
    if (!node.IsMap()) return;
    for (const auto& member : node) {
      look(0);
      visit(textOf(member.first), member.second);
    }
  }

  void readVariables(const YAML::Node& list, EspansoVariables& variables) {
    elementsOf(list, [&](const YAML::Node& element) {
      std::string name;
      EspansoVariable variable;
      membersOf(element, [&](const std::string& key, const YAML::Node& value) {
        if (key == "name") name = textOf(value);
        if (key == "type") variable.type = textOf(value);
        if (key == "params") readParameters(value, variable);
      });
      variables[name] = variable;
    });
  }

  void readParameters(const YAML::Node& members, EspansoVariable& variable) {
    membersOf(members, [&](const std::string& key, const YAML::Node& value) {
      variable.hasMore = variable.hasMore || !value.IsScalar();
      variable.parameters[key] = textOf(value);
    });
  }

  void readMatch(const YAML::Node& node) {
    EspansoMatch match;
    if (!node.IsMap()) match.problem = translate("Importers", "it is not a match");
    membersOf(node, [&](const std::string& key, const YAML::Node& value) { readMember(match, key, value); });
    if (match.triggers.empty() && match.problem.empty())
      match.problem = translate("Importers", "it has no trigger");
    const std::string line = std::to_string(node.Mark().line + 1);
    match.where =
        file_.name.empty() ? filledIn(translate("Importers", "line %1"), {line}) : file_.name + ":" + line;
    matches_.push_back(std::move(match));
  }

  void readMember(EspansoMatch& match, const std::string& key, const YAML::Node& value) {
    if (key == "trigger") match.triggers = {textOf(value)};
    if (key == "triggers")
      elementsOf(value, [&](const YAML::Node& each) { match.triggers.push_back(textOf(each)); });
    if (key == "replace") match.text = textOf(value);
    if (key == "label") match.label = textOf(value);
    if (key == "search_terms")
      elementsOf(value, [&](const YAML::Node& each) { match.searchTerms.push_back(textOf(each)); });
    if (key == "vars") readVariables(value, match.variables);
    if (key == "propagate_case") match.carriesCase = textOf(value) == "true";
    if (const std::string problem = problemOfMember(key); !problem.empty()) match.problem = problem;
  }

  const MatchFile& file_;
  EspansoVariables globals_;
  std::vector<EspansoMatch> matches_;
  std::size_t left_ = 4 * largestMatchFile;
};

/// Makes the text that is inserted here of one that has variables of espanso's.
class ReplacementReader {
 public:
  ReplacementReader(const EspansoMatch& match, const EspansoVariables& globals, const ImportTerms& terms)
      : match_(match), globals_(globals), terms_(terms) {}

  /// Why it has no equal; none where it has.
  std::optional<std::string> read() {
    constexpr std::size_t longestReference = 200;
    std::string_view rest = match_.text;
    if (rest.find("$|$") != std::string_view::npos) return translate("Importers", "it places the caret");
    while (!rest.empty()) {
      const std::size_t open = std::min(rest.find("{{"), rest.size());
      addLiteral(rest.substr(0, open));
      rest.remove_prefix(open);
      const std::size_t close = rest.substr(0, longestReference).find("}}");
      const auto name = close == std::string_view::npos ? std::nullopt : nameIn(rest.substr(0, close));
      if (!name) {
        addLiteral(rest.substr(0, 1));
        rest.remove_prefix(std::min<std::size_t>(rest.size(), 1));
        continue;
      }
      if (auto problem = takeVariable(*name)) return problem;
      rest.remove_prefix(close + 2);
    }
    if (text_.wouldBeFilledIn()) return translate("Importers", "its text would be filled in here");
    return std::nullopt;
  }

  const std::string& text() const { return text_.text(); }

 private:
  /// Braces behind backslashes are braces.
  void addLiteral(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      const auto pair = text.substr(i, 4);
      const bool isEscape = pair == R"(\{\{)" || pair == R"(\}\})";
      text_.addLiteral(isEscape ? std::string(2, pair[1]) : std::string(1, text[i]));
      if (isEscape) i += 3;
    }
  }

  /// Of "{{ name.member", all behind the braces; none where no name stands there.
  static std::optional<std::string> nameIn(std::string_view reference) {
    reference.remove_prefix(2);
    while (reference.starts_with(' ')) reference.remove_prefix(1);
    while (reference.ends_with(' ')) reference.remove_suffix(1);
    const auto isPart = [](char c) {
      return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '_' || c == '.' || (c & 0x80) != 0;
    };
    if (reference.empty() || !std::ranges::all_of(reference, isPart)) return std::nullopt;
    return std::string(reference);
  }

  std::optional<std::string> takeVariable(const std::string& name) {
    const auto own = match_.variables.find(name);
    const auto global = globals_.find(name);
    if (own == match_.variables.end() && global == globals_.end())
      return filledIn(translate("Importers", "it uses %1, which is not among its variables"), {shown(name)});
    return takeValue(own == match_.variables.end() ? global->second : own->second);
  }

  std::optional<std::string> takeValue(const EspansoVariable& variable) {
    const auto& parameters = variable.parameters;
    if (variable.type == "clipboard" && parameters.empty() && !variable.hasMore) {
      text_.addVariables("{{clipboard}}");
      return std::nullopt;
    }
    if (variable.type == "date") return takeDate(variable);
    if (variable.type == "echo" && parameters.size() == 1 && parameters.contains("echo") &&
        parameters.at("echo").find("{{") == std::string::npos) {
      text_.addLiteral(parameters.at("echo"));
      return std::nullopt;
    }
    return filledIn(translate("Importers", "it has a variable of the kind %1"), {shown(variable.type)});
  }

  std::optional<std::string> takeDate(const EspansoVariable& variable) {
    const auto format = variable.parameters.find("format");
    const bool isPlain =
        variable.parameters.size() == 1 && format != variable.parameters.end() && !variable.hasMore;
    const auto variables = isPlain ? templateForDateFormat(format->second, terms_) : std::nullopt;
    if (!variables) return translate("Importers", "it writes a date in another form");
    text_.addVariables(*variables);
    return std::nullopt;
  }

  const EspansoMatch& match_;
  const EspansoVariables& globals_;
  const ImportTerms& terms_;
  ForeignText text_;
};

void takeMatch(ForeignSnippets& result, const EspansoMatch& match, const EspansoVariables& globals,
               const ImportTerms& terms) {
  const std::string where = shownAt(match.where, match.triggers.empty() ? match.label : match.triggers[0]);
  if (!match.problem.empty()) return result.leaveOut(where, match.problem);
  ReplacementReader replacement(match, globals, terms);
  if (const auto problem = replacement.read()) return result.leaveOut(where, *problem);
  const std::size_t before = result.snippets.size();
  for (const std::string& trigger : match.triggers)
    result.take({shownAt(match.where, trigger), trigger, replacement.text(), match.label, match.searchTerms},
                terms);
  if (match.carriesCase && result.snippets.size() > before)
    result.changed.push_back(
        {where, translate("Importers", "its text does not follow the case of what is typed")});
}

}  // namespace

ForeignSnippets readEspansoMatches(const std::vector<MatchFile>& files, const ImportTerms& terms) {
  ForeignSnippets result;
  EspansoVariables globals;
  std::vector<EspansoMatch> matches;
  for (const MatchFile& file : files) {
    try {
      MatchReader reader(file);
      reader.read();
      globals.merge(reader.globals());
      std::ranges::move(reader.matches(), std::back_inserter(matches));
    } catch (const DataError& error) {
      if (files.size() == 1) throw;
      result.leaveOut(file.name, error.what());
    }
  }
  for (const EspansoMatch& match : matches) takeMatch(result, match, globals, terms);
  return result;
}

}  // namespace tessarin
