#pragma once

#include "Check.h"
#include "importers/ForeignSnippets.h"
#include "model/SnippetCoding.h"
#include "model/SnippetDraft.h"

namespace tessarin::fuzz {

inline ImportTerms importTerms() {
  return {.triggerCharacter = ";", .patterns = shortPatterns("de_DE")};
}

/// What every reader promises of what it makes: it can be typed, saved and told.
inline void checkImport(const ForeignSnippets& imported) {
  for (const Snippet& snippet : imported.snippets) {
    check(!snippet.trigger.empty() && filteredTrigger(snippet.trigger) == snippet.trigger,
          "a trigger can be typed");
    check(!snippet.replacement.empty() && !snippet.name.empty(), "a snippet is whole");
  }
  check(decodeSnippets(encodeSnippets(imported.snippets, JsonStyle::compact)) == imported.snippets,
        "what is imported can be saved");
  for (const auto* notes : {&imported.leftOut, &imported.changed}) {
    for (const auto& [where, why] : *notes) {
      check((where + why).find('\n') == std::string::npos && !why.empty(), "a note is one line");
    }
  }
}

}  // namespace tessarin::fuzz
