#include "model/LocalEmoji.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "base/DataError.h"
#include "base/Files.h"
#include "base/Log.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

constexpr const char* english = "en";

std::string_view nameIn(std::string_view line) {
  return line.substr(0, line.find('\t'));
}

/// Each with its line break.
std::vector<std::size_t> lineStarts(std::string_view text) {
  std::vector<std::size_t> starts{0};
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] == '\n') starts.push_back(at + 1);
  }
  return starts;
}

void appendWords(std::string_view line, std::vector<std::string>& words) {
  const std::string_view name = nameIn(line);
  std::string ofName = text::typableWord(name);
  line.remove_prefix(name.size());
  while (!line.empty()) {
    const std::string_view word = nameIn(line.substr(1));
    // The shorter first, as in the file: the first that matches decides.
    if (!ofName.empty() && word.size() > ofName.size()) words.push_back(std::exchange(ofName, {}));
    words.emplace_back(word);
    line.remove_prefix(1 + word.size());
  }
  if (!ofName.empty()) words.push_back(std::move(ofName));
}

}  // namespace

LocalEmoji::LocalEmoji(const std::filesystem::path& folder, const std::vector<std::string>& languages,
                       std::size_t count)
    : count_(count) {
  bool givesNames = true;
  for (const std::string& language : languages) {
    if (language == english) givesNames = false;
    if (language.find('/') == std::string::npos) load(folder / (language + ".txt"), givesNames);
  }
}

void LocalEmoji::load(const std::filesystem::path& file, bool givesNames) {
  try {
    auto text = readFileIfPresent(file);
    if (!text) return;
    auto lines = lineStarts(*text);
    if (!text::isValidUtf8(*text)) throw DataError("not valid UTF-8");
    if (lines.size() != count_ + 1 || lines.back() != text->size())
      throw DataError("not a line for each emoji");
    files_.push_back({*std::move(text), std::move(lines), givesNames});
    log("SnippetStore", "Loaded emoji words of " + file.stem().string());
  } catch (const std::exception& error) {
    log("SnippetStore", "Failed to load emoji words of " + file.stem().string() + ": " + error.what());
  }
}

std::string_view LocalEmoji::File::lineOf(std::size_t emoji) const {
  return std::string_view(text).substr(lines[emoji], lines[emoji + 1] - 1 - lines[emoji]);
}

std::string LocalEmoji::nameOf(std::size_t emoji) const {
  for (const File& file : files_) {
    const std::string_view name = nameIn(file.lineOf(emoji));
    if (file.givesNames && !name.empty()) return std::string(name);
  }
  return {};
}

std::vector<std::string> LocalEmoji::wordsOf(std::size_t emoji) const {
  std::vector<std::string> words;
  for (const File& file : files_) appendWords(file.lineOf(emoji), words);
  const std::size_t count = words.size();
  for (std::size_t i = 0; i < count; ++i) {
    std::string plain = text::withPlainLetters(words[i]);
    if (plain != words[i]) words.push_back(std::move(plain));
  }
  return words;
}

}  // namespace tessarin
