#include "main/SnippetCommands.h"

#include <exception>

#include "base/Translate.h"
#include "model/SnippetCoding.h"
#include "model/SnippetDraft.h"
#include "model/SnippetFile.h"
#include "model/SnippetStore.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

std::string inOneLine(const std::string& text) {
  std::string result;
  for (const char c : text) {
    switch (c) {
      case '\\':
        result += "\\\\";
        break;
      case '\t':
        result += "\\t";
        break;
      case '\n':
        result += "\\n";
        break;
      case '\r':
        result += "\\r";
        break;
      default:
        result += c;
    }
  }
  return result;
}

/// Not said to have failed: a running program has it now, and saves it later.
Answer unlessUnsaved(const SnippetStore& store, const std::string& done) {
  if (!store.saveFailure()) return {true, done};
  return {false, filledIn(translate("SnippetCommands", "Not saved: %1"), {*store.saveFailure()})};
}

Answer importSnippets(SnippetStore& store, const std::filesystem::path& file) {
  try {
    const int count = static_cast<int>(store.addImported(readSnippetFile(file)));
    return unlessUnsaved(store, count == 1
                                    ? translate("SnippetCommands", "Imported 1 snippet")
                                    : translate("SnippetCommands", "Imported %n snippets", nullptr, count));
  } catch (const std::exception& error) {
    return {false, filledIn(translate("SnippetCommands", "Import failed: %1"), {error.what()})};
  }
}

Answer exportSnippets(const SnippetStore& store, const std::filesystem::path& file) {
  try {
    store.exportSnippets(file);
    const int count = static_cast<int>(store.userSnippets().size());
    return {true, count == 1 ? translate("SnippetCommands", "Exported 1 snippet")
                             : translate("SnippetCommands", "Exported %n snippets", nullptr, count)};
  } catch (const std::exception& error) {
    return {false, filledIn(translate("SnippetCommands", "Export failed: %1"), {error.what()})};
  }
}

/// Why no snippet is made of it; empty where one is.
std::string problemOf(const SnippetStore& store, const SnippetDraft& draft) {
  for (const std::string* text : {&draft.trigger, &draft.replacement, &draft.name, &draft.keywords}) {
    // What is not could never be saved, nor anything else with it.
    if (!text::isValidUtf8(*text)) return translate("SnippetCommands", "the text is not UTF-8");
  }
  if (draft.trigger.empty() || filteredTrigger(draft.trigger) != draft.trigger)
    return translate("SnippetCommands", "a trigger has letters, digits, _ and - only");
  if (draft.replacement.empty()) return translate("SnippetCommands", "a snippet needs a text");
  if (store.hasTrigger(draft.trigger))
    return filledIn(translate("SnippetCommands", "there is a snippet with the trigger %1 already"),
                    {draft.trigger});
  return {};
}

Answer add(SnippetStore& store, SnippetDraft draft) {
  if (draft.name.empty()) draft.name = draft.trigger;
  const std::string problem = problemOf(store, draft);
  if (!problem.empty()) return {false, problem};
  store.addSnippet(draft.makeSnippet({}));
  return unlessUnsaved(store, translate("SnippetCommands", "Added 1 snippet"));
}

Answer remove(SnippetStore& store, const std::string& trigger) {
  const int count = static_cast<int>(store.deleteTrigger(trigger));
  if (count == 0)
    return {false,
            filledIn(translate("SnippetCommands", "no snippet of yours has the trigger %1"), {trigger})};
  return unlessUnsaved(store, count == 1
                                  ? translate("SnippetCommands", "Removed 1 snippet")
                                  : translate("SnippetCommands", "Removed %n snippets", nullptr, count));
}

}  // namespace

Answer carryOut(SnippetStore& store, const Request& request) {
  const auto& arguments = request.arguments;
  switch (request.kind) {
    case Request::Kind::importFile:
      return importSnippets(store, arguments[0]);
    case Request::Kind::exportFile:
      return exportSnippets(store, arguments[0]);
    case Request::Kind::add:
      return add(store, {arguments[2], arguments[0], arguments[1], arguments[3]});
    case Request::Kind::remove:
      return remove(store, arguments[0]);
    default:
      return {false, translate("Program", "unknown request")};
  }
}

std::string listed(const std::vector<Snippet>& snippets, bool asJson) {
  if (asJson) return encodeSnippets(snippets, JsonStyle::pretty) + "\n";
  std::string lines;
  for (const Snippet& snippet : snippets) {
    lines += inOneLine(snippet.trigger) + "\t" + inOneLine(snippet.replacement) + "\t" +
             inOneLine(snippet.name) + "\n";
  }
  return lines;
}

}  // namespace tessarin
