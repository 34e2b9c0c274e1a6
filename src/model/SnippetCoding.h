#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/EmojiData.h"
#include "model/Snippet.h"

/// The JSON form of snippets. Reading is all or nothing: one entry with a missing, null or wrongly typed
/// member fails the whole text with a DataError; unknown members are dropped.
namespace tessarin {

enum class JsonStyle {
  compact,  ///< one line; the user's own file
  pretty,   ///< one member a line, keys sorted; the export file
};

std::vector<Snippet> decodeSnippets(std::string_view json);
std::vector<EmojiData> decodeEmojiData(std::string_view json);

/// "/" is written as "\/". Throws DataError when a text is not valid UTF-8.
std::string encodeSnippets(const std::vector<Snippet>& snippets, JsonStyle style);

}  // namespace tessarin
