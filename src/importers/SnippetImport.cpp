#include "importers/SnippetImport.h"

#include <algorithm>
#include <set>
#include <system_error>

#include "base/Files.h"
#include "base/Translate.h"
#include "importers/AutoKeyPhrases.h"
#include "importers/CsvSnippets.h"
#include "importers/EspansoMatches.h"
#include "model/SnippetFile.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

namespace fs = std::filesystem;

enum class ImportKind { own, folder, matches, phrase, table, perhapsTable };

std::string extensionOf(const fs::path& file) {
  return text::lowercased(file.extension().string());
}

bool isMatchFile(const fs::path& file) {
  return extensionOf(file) == ".yml" || extensionOf(file) == ".yaml";
}

/// Where the description of a phrase or script lies.
fs::path descriptionOf(const fs::path& file) {
  std::string name = ".";
  name += file.stem().string() + ".json";
  return file.parent_path() / name;
}

bool hasDescription(const fs::path& file) {
  std::error_code unknown;
  return (extensionOf(file) == ".txt" || extensionOf(file) == ".py") &&
         fs::exists(descriptionOf(file), unknown);
}

std::string readBounded(const fs::path& file) {
  std::error_code noSize;
  const auto size = fs::file_size(file, noSize);
  if (!noSize && size > largestImport) throw DataError("the file is larger than 64 MB");
  return readFile(file);
}

/// Of a file whose name tells nothing.
ImportKind kindByContent(const fs::path& file) {
  const std::string content = readBounded(file);
  const auto first = content.find_first_not_of("\xEF\xBB\xBF \t\r\n");
  if (first == std::string::npos || content[first] == '[' || content[first] == '{') return ImportKind::own;
  const bool hasMatches = content.starts_with("matches:") || content.find("\nmatches:") != std::string::npos;
  return hasMatches ? ImportKind::matches : ImportKind::perhapsTable;
}

ImportKind kindOf(const fs::path& path) {
  std::error_code unknown;
  if (fs::is_directory(path, unknown)) return ImportKind::folder;
  const std::string extension = extensionOf(path);
  if (isMatchFile(path)) return ImportKind::matches;
  if (hasDescription(path)) return ImportKind::phrase;
  if (extension == ".csv" || extension == ".tsv") return ImportKind::table;
  if (extension == ".json" || !fs::is_regular_file(path, unknown)) return ImportKind::own;
  return kindByContent(path);
}

ForeignSnippets readPhrase(const fs::path& file, const std::string& where, const ImportTerms& terms) {
  const std::string text = extensionOf(file) == ".txt" ? readBounded(file) : std::string();
  return readAutoKeyPhrase(where, readBounded(descriptionOf(file)), text, terms);
}

/// All files of a folder in the order of their names, through links as well. A folder that a link leads back
/// to is gone through once; hidden ones belong to other programs.
class FolderWalk {
 public:
  explicit FolderWalk(const fs::path& root) {
    std::error_code error;
    if (fs::directory_iterator(root, error); error) throw fs::filesystem_error("cannot read", root, error);
    walk(root, 0);
  }

  const std::vector<fs::path>& files() const { return files_; }
  const std::vector<fs::path>& unreadable() const { return unreadable_; }

 private:
  void walk(const fs::path& folder, int depth) {
    constexpr int deepest = 32;
    std::error_code error;
    const fs::path known = fs::canonical(folder, error);
    if (!error && !seen_.insert(known).second) return;
    std::vector<fs::path> entries;
    for (fs::directory_iterator entry(folder, error); !error && entry != fs::directory_iterator();
         entry.increment(error))
      entries.push_back(entry->path());
    if (error || depth > deepest) return unreadable_.push_back(folder);
    std::ranges::sort(entries);
    for (const fs::path& entry : entries) take(entry, depth);
  }

  void take(const fs::path& entry, int depth) {
    constexpr std::size_t most = 100'000;
    std::error_code broken;
    if (entry.filename().string().starts_with('.')) return;
    if (fs::is_directory(entry, broken)) return walk(entry, depth + 1);
    if (files_.size() == most) throw DataError("the folder holds too many files");
    files_.push_back(entry);
  }

  std::vector<fs::path> files_;
  std::vector<fs::path> unreadable_;
  std::set<fs::path> seen_;
};

class FolderReader {
 public:
  FolderReader(const fs::path& root, const ImportTerms& terms) : root_(root), terms_(terms) {}

  ForeignSnippets read() {
    const FolderWalk walk(root_);
    for (const fs::path& file : walk.files()) {
      if (isMatchFile(file) || hasDescription(file)) take(file);
    }
    if (!isAny_) throw DataError(translate("Importers", "the folder holds nothing that can be imported"));
    for (const fs::path& folder : walk.unreadable())
      result_.leaveOut(nameOf(folder), translate("Importers", "the folder cannot be read"));
    result_.append(readEspansoMatches(matchFiles_, terms_));
    return std::move(result_);
  }

 private:
  std::string nameOf(const fs::path& path) const { return shown(path.lexically_relative(root_).string()); }

  /// One that cannot be read keeps none of the others out.
  void take(const fs::path& file) {
    isAny_ = true;
    const std::string name = nameOf(file);
    try {
      if (!isMatchFile(file)) return result_.append(readPhrase(file, name, terms_));
      matchFiles_.push_back({name, readBounded(file)});
      read_ += matchFiles_.back().yaml.size();
    } catch (const std::exception& error) {
      result_.leaveOut(name, error.what());
    }
    if (read_ > largestImport) throw DataError("the folder holds more than 64 MB");
  }

  const fs::path& root_;
  const ImportTerms& terms_;
  ForeignSnippets result_;
  std::vector<MatchFile> matchFiles_;
  std::size_t read_ = 0;
  bool isAny_ = false;
};

ForeignSnippets readMatches(const fs::path& file, const ImportTerms& terms) {
  ForeignSnippets result = readEspansoMatches({{{}, readBounded(file)}}, terms);
  if (result.snippets.empty() && result.leftOut.empty())
    throw DataError(translate("Importers", "the file holds no matches"));
  return result;
}

/// A file whose name does not say that it is one.
ForeignSnippets readWhatMayBeATable(const fs::path& file, const ImportTerms& terms) {
  ForeignSnippets result = readCsvSnippets(readBounded(file), terms);
  if (result.snippets.empty())
    throw DataError(translate("Importers", "this kind of file cannot be imported"));
  return result;
}

}  // namespace

bool isForeign(const fs::path& path) {
  try {
    return kindOf(path) != ImportKind::own;
  } catch (const std::runtime_error&) {
    return false;
  }
}

ForeignSnippets readAnySnippets(const fs::path& path, const ImportTerms& terms) {
  switch (kindOf(path)) {
    case ImportKind::own: {
      ForeignSnippets own;
      own.snippets = readSnippetFile(path);
      return own;
    }
    case ImportKind::folder:
      return FolderReader(path, terms).read();
    case ImportKind::matches:
      return readMatches(path, terms);
    case ImportKind::phrase:
      return readPhrase(path, path.filename().string(), terms);
    case ImportKind::table:
      return readCsvSnippets(readBounded(path), terms);
    case ImportKind::perhapsTable:
      return readWhatMayBeATable(path, terms);
  }
  return {};
}

}  // namespace tessarin
