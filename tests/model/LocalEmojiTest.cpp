// What emoji are called and found by in the user's language, with the data that is shipped.

#include <algorithm>
#include <set>
#include <utility>

#include "Matchers.h"
#include "base/UserLanguages.h"
#include "model/LocalEmoji.h"
#include "model/SnippetStore.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;

const fs::path resources = fs::path(TESSARIN_SOURCE_DIR) / "resources";

/// The shipped entries as a user has them whose LANGUAGE this is.
class LocalStore {
 public:
  explicit LocalStore(const std::string& language) {
    store_.learnLanguages(userLanguages([&](const std::string& name) {
      return std::optional(name == "LANGUAGE" ? language : "en_US.UTF-8");
    }));
  }
  SnippetStore* operator->() { return &store_; }

 private:
  LogRecorder log_;
  TemporaryFolder storage_;
  SystemWallClock clock_;
  SnippetStore store_{{.resources = resources, .storage = storage_.path()}, clock_};
};

std::vector<std::string> idsOf(const std::vector<Snippet>& snippets) {
  std::vector<std::string> ids;
  for (const Snippet& snippet : snippets) ids.push_back(snippet.id);
  return ids;
}

TEST(LocalEmoji, AreShippedInFortyLanguagesAndFiveMegabytes) {
  LocalStore english("en");
  const auto emoji = std::ranges::count_if(
      english->builtInSnippets(), [](const Snippet& snippet) { return snippet.id.starts_with("emoji_"); });
  std::set<std::string> languages;
  std::uintmax_t size = 0;
  for (const auto& entry : fs::directory_iterator(resources / "emoji-words")) {
    const std::string name = entry.path().stem().string();
    EXPECT_FALSE(LocalEmoji(resources / "emoji-words", {name}, static_cast<std::size_t>(emoji)).isEmpty());
    languages.insert(name.substr(0, name.find('-')));
    size += entry.file_size();
  }
  EXPECT_GE(languages.size(), 40U);
  EXPECT_LE(size, 5'000'000U);
}

TEST(LocalEmoji, AreFoundAndNamedInTheLanguagesOfTheUser) {
  const struct {
    std::string language, query, found, name;
  } cases[] = {
      {"de_AT", "herz", "❤️", "rotes Herz"},
      {"de_AT", "heart", "❤️", "rotes Herz"},
      {"de_AT", "gebrochenes_herz", "💔", "gebrochenes Herz"},
      {"de_AT", "deutschland", "🇩🇪", "Flagge: Deutschland"},
      {"de_AT", "HUND", "🐶", "Hundegesicht"},
      {"ru", "сердце", "❤️", "алое сердце"},
      {"fr", "cœur", "❤️", "cœur rouge"},
      {"fr", "etoile", "⭐", "étoile"},
      {"ja", "心", "❤️", "赤いハート"},
      {"ja", "ハート", "❤️", "赤いハート"},
      {"zh_CN", "心", "❤️", "红心"},
      {"zh_TW", "愛心", "❤️", "愛心"},
      {"th", "หัวใจ", "❤️", "หัวใจสีแดง"},
      {"sr@latin", "srce", "❤️", "crveno srce"},
      {"nb_NO", "hjerte", "❤️", "rødt hjerte"},
      // The first names; all find.
      {"de:fr", "cœur", "❤️", "rotes Herz"},
      {"en:de", "herz", "❤️", "red heart"},
      {"pt_PT", "autocarro", "🚌", "autocarro"},
      {"pt_PT", "ônibus", "🚌", "autocarro"},
      {"pt_BR", "ônibus", "🚌", "ônibus"},
  };
  std::string last;
  std::optional<LocalStore> store;
  for (const auto& c : cases) {
    if (std::exchange(last, c.language) != c.language) store.emplace(c.language);
    const auto results = (*store)->search(c.query, 1);
    ASSERT_FALSE(results.empty()) << c.language << " " << c.query;
    EXPECT_EQ(results[0].replacement, c.found) << c.language << " " << c.query;
    EXPECT_EQ(results[0].name, c.name) << c.language << " " << c.query;
  }
}

TEST(LocalEmoji, LeaveEnglishAsItIs) {
  LocalStore english("C");
  LocalStore british("en_GB:en");
  LocalStore german("de:fr");
  EXPECT_EQ(british->builtInSnippets(), english->builtInSnippets());
  constexpr std::size_t all = 10'000;
  std::set<std::string> queries;
  for (std::size_t i = 0; i < english->builtInSnippets().size(); i += 40) {
    const Snippet& snippet = english->builtInSnippets()[i];
    for (std::size_t length = 1; length <= snippet.trigger.size(); length += 2)
      queries.insert(snippet.trigger.substr(0, length));
    queries.insert(snippet.keywords.begin(), snippet.keywords.end());
  }
  for (const std::string& query : queries) {
    const auto ranked = idsOf(english->search(query, all));
    EXPECT_EQ(idsOf(british->search(query, all)), ranked) << query;
    auto local = idsOf(german->search(query, all));
    std::erase_if(local, [known = std::set(ranked.begin(), ranked.end())](const std::string& id) {
      return !known.contains(id);
    });
    EXPECT_EQ(local, ranked) << query;
  }
}

}  // namespace
}  // namespace tessarin::testing
