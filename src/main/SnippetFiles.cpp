#include "main/SnippetFiles.h"

#include <exception>

#include "base/Translate.h"
#include "model/SnippetCoding.h"
#include "model/SnippetStore.h"

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

}  // namespace

Answer importSnippets(SnippetStore& store, const std::filesystem::path& file) {
  try {
    const int count = static_cast<int>(store.importSnippets(file));
    // Not said to have failed: a running program has them now, and saves them later.
    if (store.saveFailure()) {
      return {false, filledIn(translate("SnippetFiles", "Not saved: %1"), {*store.saveFailure()})};
    }
    return {true, count == 1 ? translate("SnippetFiles", "Imported 1 snippet")
                             : translate("SnippetFiles", "Imported %n snippets", nullptr, count)};
  } catch (const std::exception& error) {
    return {false, filledIn(translate("SnippetFiles", "Import failed: %1"), {error.what()})};
  }
}

Answer exportSnippets(const SnippetStore& store, const std::filesystem::path& file) {
  try {
    store.exportSnippets(file);
    const int count = static_cast<int>(store.userSnippets().size());
    return {true, count == 1 ? translate("SnippetFiles", "Exported 1 snippet")
                             : translate("SnippetFiles", "Exported %n snippets", nullptr, count)};
  } catch (const std::exception& error) {
    return {false, filledIn(translate("SnippetFiles", "Export failed: %1"), {error.what()})};
  }
}

std::string searchResults(const SnippetStore& store, const std::string& query, const SearchOptions& options) {
  const auto found = store.search(query, options.limit);
  if (options.json) return encodeSnippets(found, JsonStyle::pretty) + "\n";
  std::string lines;
  for (const Snippet& snippet : found) {
    lines += inOneLine(snippet.trigger) + "\t" + inOneLine(snippet.replacement) + "\t" +
             inOneLine(snippet.name) + "\n";
  }
  return lines;
}

}  // namespace tessarin
