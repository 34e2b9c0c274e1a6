#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/Snippet.h"

namespace tessarin {

/// The category of every snippet that was made or changed in the editor.
inline constexpr const char* customCategory = "Custom";

/// A snippet while it is being written: four texts as they stand in the editor's fields.
struct SnippetDraft {
  std::string name;
  std::string trigger;
  std::string replacement;
  std::string keywords;  ///< one line, separated by commas

  /// The texts of a snippet; its trigger without the characters that a trigger may not have.
  static SnippetDraft of(const Snippet& snippet);

  /// Whether name, trigger and replacement are filled; a space counts.
  bool isValid() const;
  /// The snippet with all texts as they stand, under the id or, without one, a new one.
  Snippet makeSnippet(const std::optional<std::string>& id = std::nullopt) const;
};

/// The characters that a trigger may have: letters and numbers of any script with the marks that belong to
/// them, "_" and "-". All others are dropped.
std::string filteredTrigger(std::string_view text);

/// The keywords between the commas, in order, without spaces and tabs around them; empty ones are dropped.
std::vector<std::string> parseKeywords(std::string_view line);

}  // namespace tessarin
