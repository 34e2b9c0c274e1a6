#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/Signal.h"
#include "model/DataFile.h"
#include "model/LocalCalendar.h"
#include "model/SearchIndex.h"
#include "model/Snippet.h"
#include "model/UsageTracker.h"

namespace tessarin {

/// The one place that holds every snippet: the built-in emoji and kaomoji, and the user's own, which alone
/// can be changed and are saved after every change. Owns the usage tracker. Main thread.
class SnippetStore {
 public:
  struct Folders {
    std::filesystem::path resources;  ///< holds emoji-data.json, kaomoji-data.json and emoji-words/
    std::filesystem::path storage;    ///< holds the user's snippets and usage files
  };

  /// Loads everything; what cannot be read is logged and missing. The clock must outlive the store.
  SnippetStore(Folders folders, const WallClock& clock, LocalCalendar calendar = LocalCalendar());
  SnippetStore(const SnippetStore&) = delete;
  SnippetStore& operator=(const SnippetStore&) = delete;

  /// Takes up what the emoji are called and searched by in these languages (see `userLanguages`), behind the
  /// English words. Ids, triggers and what is saved stay as they are. Takes some milliseconds a language.
  void learnLanguages(const std::vector<std::string>& languages);

  /// First the emoji, then the kaomoji, each in file order.
  const std::vector<Snippet>& builtInSnippets() const { return builtInSnippets_; }
  const std::vector<Snippet>& userSnippets() const { return userSnippets_; }
  /// The built-in ones, then the user's.
  std::vector<Snippet> allSnippets() const;
  UsageTracker& usageTracker() { return usageTracker_; }
  const UsageTracker& usageTracker() const { return usageTracker_; }

  /// The best `limit` snippets for what was typed after the trigger character, best first.
  std::vector<Snippet> search(std::string_view query, std::size_t limit) const;

  /// Failures are logged; the old file then stays.
  void saveUserSnippets();
  /// Why what was changed last is in memory only.
  const std::optional<std::string>& saveFailure() const { return userFile_.failure(); }
  /// Writes once more what could not be saved and what has been removed from the disk since, the usage files
  /// included. Happens at each expansion too.
  void saveWhatIsMissing();
  /// Appends as it is, whatever triggers and ids there are already.
  void addSnippet(const Snippet& snippet);
  /// Replaces the first user snippet of that id; without one nothing happens and nothing is saved.
  void updateSnippet(const Snippet& snippet);
  /// Removes every user snippet of that id.
  void deleteSnippet(const std::string& id);
  /// Removes every user snippet with that trigger (exact text), and returns how many; nothing is saved where
  /// there is none.
  std::size_t deleteTrigger(const std::string& trigger);
  /// Whether any snippet has it (exact text).
  bool hasTrigger(const std::string& trigger) const;

  /// Adds those of the snippets whose trigger (exact text) no snippet here has, with new ids, and returns how
  /// many.
  std::size_t addImported(std::vector<Snippet> imported);
  /// Throws what `writeSnippetFile` throws, and std::runtime_error where there is an export problem.
  void exportSnippets(const std::filesystem::path& file) const;
  /// Why nothing may be exported, in a sentence for the user: the user's snippets could not be read when the
  /// program started, and a file that has them may be all that is left of them.
  std::optional<std::string> exportProblem() const;

  /// Runs before each change of either list.
  [[nodiscard]] Subscription onWillChange(std::function<void()> callback);
  /// Runs after each change of either list.
  [[nodiscard]] Subscription onChange(std::function<void()> callback);

 private:
  void loadBuiltInEmojis();
  void loadBuiltInKaomoji();
  bool loadBuiltIns(const char* source, std::vector<Snippet>& loaded) const;
  void loadUserSnippets();
  void learn(std::size_t emoji, std::string name, std::vector<std::string> words);
  void saveSnippetsIfMissing();
  void indexUsage(const std::string& trigger);
  void append(Snippet snippet);
  std::size_t removeThose(const std::function<bool(const Snippet&)>& goes);
  void finishChange();
  void change(const std::function<void()>& apply);
  const Snippet& at(std::size_t position) const;

  Folders folders_;
  UsageTracker usageTracker_;
  DataFile userFile_;
  std::vector<Snippet> builtInSnippets_;
  std::size_t emojiCount_ = 0;  ///< of the built-in snippets, the first
  std::vector<Snippet> userSnippets_;
  SearchIndex index_;
  Signal<> willChange_;
  Signal<> changed_;
  Subscription usageSubscription_;
};

}  // namespace tessarin
