#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin {

/// What the emoji are called and searched by in languages other than English. A language's file has a line
/// for each emoji, in the order of emoji-data.json: its name and its words, parted by tabs, as the search is
/// to look at them (see tools/make-emoji-words.py); an empty line where the language has none.
class LocalEmoji {
 public:
  /// Reads from the folder what it has of the languages, the most wanted first, for so many emoji. A file
  /// that cannot be read, or has another number of lines, is logged and left out.
  LocalEmoji(const std::filesystem::path& folder, const std::vector<std::string>& languages,
             std::size_t count);

  bool isEmpty() const { return files_.empty(); }
  /// By the most wanted language that has one; empty where that is English, or none has.
  std::string nameOf(std::size_t emoji) const;
  /// In all of the languages, the most wanted first; the names are words, too. Behind them, those with
  /// accents as one types them without.
  std::vector<std::string> wordsOf(std::size_t emoji) const;

 private:
  struct File {
    std::string text;
    std::vector<std::size_t> lines;  ///< where each begins, and the end of the text
    bool givesNames;

    std::string_view lineOf(std::size_t emoji) const;
  };

  void load(const std::filesystem::path& file, bool givesNames);

  std::size_t count_;
  std::vector<File> files_;
};

}  // namespace tessarin
