#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "base/DataError.h"
#include "model/Snippet.h"
#include "model/TemplateVariables.h"

namespace tessarin {

/// What an import goes by of the user's own.
struct ImportTerms {
  std::string triggerCharacter = ":";          ///< what the user types before a shortcode
  ShortPatterns patterns = shortPatterns({});  ///< how dates and times are filled in
};

/// The most that is made of a file or folder of another program, in bytes: thousands of times what a user
/// has, and little enough to be held in memory several times over.
inline constexpr std::size_t largestImport = 64U << 20;

/// What was made of another program's snippets, and what was not. The notes are for the user to read, line by
/// line, in the user's language.
struct ForeignSnippets {
  struct Note {
    std::string where;  ///< file, line or trigger, in one line
    std::string why;

    bool operator==(const Note&) const = default;
  };

  std::vector<Snippet> snippets;  ///< without ids, which the store makes
  std::vector<Note> leftOut;      ///< what has no equal here
  std::vector<Note> changed;      ///< what was imported though not quite as it was

  /// One snippet of another program. A trigger loses one trigger character (the user's, or ":") at either
  /// end, and what cannot be typed behind one, which is noted. Without a name it is called like its trigger.
  struct Found {
    std::string where;
    std::string trigger;
    std::string text;
    std::string name;
    std::vector<std::string> keywords;
  };
  /// Throws DataError where all texts together are larger than `largestImport`.
  void take(Found found, const ImportTerms& terms);
  void leaveOut(std::string where, std::string why);
  void append(ForeignSnippets more);

  std::size_t size = 0;  ///< of the texts taken, in bytes
};

/// What was left out and what was changed, each counted and named in a line of its own, for the user; empty
/// where there is neither.
std::string notesOf(const ForeignSnippets& imported);

/// A part of a file as a note can show it: short, in one line.
std::string shown(std::string_view text);
/// The same behind a place: "line 3 (smile)".
std::string shownAt(const std::string& place, std::string_view text);

/// The text without a byte order mark. Throws DataError where it is not UTF-8.
std::string_view requireUtf8(std::string_view text);
/// With line feeds alone between its lines.
std::string withLineFeeds(std::string_view text);

/// Throws the DataError that names the line, counted from 1.
[[noreturn]] void failAtLine(const char* problem, std::size_t line);

}  // namespace tessarin
