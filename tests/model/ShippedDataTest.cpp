#include <gtest/gtest.h>
#include <jansson.h>
#include <unicode/uchar.h>

#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "model/SearchIndex.h"
#include "model/Snippet.h"
#include "text/Graphemes.h"

namespace tessarin {
namespace {

struct ReleaseJson {
  void operator()(json_t* value) const { json_decref(value); }
};

std::string field(json_t* record, const char* key) {
  json_t* value = json_object_get(record, key);
  if (!json_is_string(value)) throw std::runtime_error(std::string("no text: ") + key);
  return json_string_value(value);
}

Snippet toSnippet(json_t* record) {
  json_t* list = json_object_get(record, "keywords");
  if (!json_is_array(list) || json_object_size(record) != 5) throw std::runtime_error("not a record");
  std::vector<std::string> keywords;
  for (std::size_t i = 0; i < json_array_size(list); ++i) {
    keywords.emplace_back(json_string_value(json_array_get(list, i)));
  }
  return {"",
          field(record, "name"),
          field(record, "trigger"),
          field(record, "replacement"),
          keywords,
          field(record, "category"),
          true};
}

std::vector<Snippet> load(const std::string& file) {
  const std::string path = std::string(TESSARIN_SOURCE_DIR) + "/resources/" + file;
  const std::unique_ptr<json_t, ReleaseJson> root(
      json_load_file(path.c_str(), JSON_REJECT_DUPLICATES, nullptr));
  if (!json_is_array(root.get())) throw std::runtime_error("not an array: " + file);
  std::vector<Snippet> snippets;
  for (std::size_t i = 0; i < json_array_size(root.get()); ++i) {
    snippets.push_back(toSnippet(json_array_get(root.get(), i)));
  }
  return snippets;
}

const std::vector<Snippet>& emoji() {
  static const std::vector<Snippet> snippets = load("emoji-data.json");
  return snippets;
}

const std::vector<Snippet>& kaomoji() {
  static const std::vector<Snippet> snippets = load("kaomoji-data.json");
  return snippets;
}

std::vector<Snippet> everything() {
  std::vector<Snippet> all = emoji();
  all.insert(all.end(), kaomoji().begin(), kaomoji().end());
  return all;
}

/// Whether the trigger detector would collect the whole of it.
bool isTypable(std::string rest) {
  if (rest.empty() || text::characterCount(rest) > 64) return false;
  while (!rest.empty()) {
    const std::string first = text::firstCharacter(rest);
    if (!text::startsAlphanumeric(first) && first != "_" && first != "-" && first != "+") return false;
    rest.erase(0, first.size());
  }
  return true;
}

TEST(ShippedData, IsComplete) {
  EXPECT_GT(emoji().size(), 1900U);
  EXPECT_GE(kaomoji().size(), 300U);
  for (const Snippet& s : everything()) {
    EXPECT_FALSE(s.name.empty() || s.replacement.empty() || s.category.empty()) << s.trigger;
  }
}

TEST(ShippedData, CanBeTyped) {
  for (const Snippet& s : everything()) {
    EXPECT_TRUE(isTypable(s.trigger)) << s.trigger;
    for (const std::string& keyword : s.keywords)
      EXPECT_TRUE(isTypable(keyword)) << s.trigger << ": " << keyword;
  }
}

TEST(ShippedData, HasNothingTwice) {
  std::set<std::string> triggers;
  std::set<std::string> replacements;
  for (const Snippet& s : everything()) {
    EXPECT_TRUE(triggers.insert(text::lowercased(s.trigger)).second) << s.trigger;
    EXPECT_TRUE(replacements.insert(text::normalized(s.replacement)).second) << s.replacement;
    EXPECT_EQ(std::set<std::string>(s.keywords.begin(), s.keywords.end()).size(), s.keywords.size())
        << s.trigger;
  }
}

TEST(ShippedData, SortsEmojiIntoTheNineGroups) {
  std::vector<std::string> groups;
  for (const Snippet& s : emoji()) {
    if (groups.empty() || groups.back() != s.category) groups.push_back(s.category);
  }
  EXPECT_EQ(groups, (std::vector<std::string>{"Smileys & Emotion", "People & Body", "Animals & Nature",
                                              "Food & Drink", "Travel & Places", "Activities", "Objects",
                                              "Symbols", "Flags"}));
}

/// Emoji style is asked for exactly where a character would else be shown as plain text.
bool isFullyQualified(const std::u16string& text) {
  std::vector<UChar32> scalars;
  for (std::size_t i = 0; i < text.size(); i += U16_LENGTH(scalars.back())) {
    UChar32 scalar = 0;
    U16_GET(text.data(), 0, i, text.size(), scalar);
    scalars.push_back(scalar);
  }
  scalars.push_back(0);
  for (std::size_t i = 0; i + 1 < scalars.size(); ++i) {
    const bool isPlain = u_hasBinaryProperty(scalars[i], UCHAR_EMOJI) != 0 &&
                         u_hasBinaryProperty(scalars[i], UCHAR_EMOJI_PRESENTATION) == 0;
    if (isPlain != (scalars[i + 1] == 0xFE0F)) return false;
  }
  return true;
}

TEST(ShippedData, EmojiAreSingleAndFullyQualified) {
  for (const Snippet& s : emoji()) {
    EXPECT_EQ(text::characterCount(s.replacement), 1U) << s.trigger;
    EXPECT_TRUE(isFullyQualified(text::toUtf16(s.replacement))) << s.trigger;
  }
}

TEST(ShippedData, LeavesOutSkinTonesAndLoneParts) {
  for (const Snippet& s : emoji()) {
    for (const char* tone : {"\U0001F3FB", "\U0001F3FC", "\U0001F3FD", "\U0001F3FE", "\U0001F3FF"}) {
      EXPECT_EQ(s.replacement.find(tone), std::string::npos) << s.trigger;
    }
    EXPECT_FALSE(s.name.starts_with("regional indicator")) << s.name;
  }
}

class SearchOverShippedData : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    index_ = std::make_unique<SearchIndex>();
    all_ = everything();
    for (const Snippet& s : all_) index_->append(s);
  }
  static void TearDownTestSuite() { index_.reset(); }

  static std::vector<std::string> search(const std::string& query, std::size_t limit = 8) {
    std::vector<std::string> replacements;
    for (const std::size_t position : index_->search(query, limit)) {
      replacements.push_back(all_[position].replacement);
    }
    return replacements;
  }

  static void expectFirst(const std::string& query, const std::string& replacement) {
    const auto found = search(query, 1);
    ASSERT_FALSE(found.empty()) << query;
    EXPECT_EQ(found[0], replacement) << query;
  }

 private:
  inline static std::unique_ptr<SearchIndex> index_;
  inline static std::vector<Snippet> all_;
};

TEST_F(SearchOverShippedData, GivesWhatTheKnownShortcodesMean) {
  const std::vector<std::pair<std::string, std::string>> known = {{"smile", "😄"},
                                                                  {"smiley", "😃"},
                                                                  {"grinning", "😀"},
                                                                  {"wave", "👋"},
                                                                  {"tada", "🎉"},
                                                                  {"+1", "👍"},
                                                                  {"-1", "👎"},
                                                                  {"thumbsup", "👍"},
                                                                  {"thumbsdown", "👎"},
                                                                  {"rofl", "🤣"},
                                                                  {"heart", "❤️"},
                                                                  {"joy", "😂"},
                                                                  {"fire", "🔥"},
                                                                  {"eyes", "👀"},
                                                                  {"rocket", "🚀"},
                                                                  {"pray", "🙏"},
                                                                  {"100", "💯"},
                                                                  {"ok_hand", "👌"},
                                                                  {"clap", "👏"},
                                                                  {"muscle", "💪"},
                                                                  {"sob", "😭"},
                                                                  {"cry", "😢"},
                                                                  {"thinking", "🤔"},
                                                                  {"shrug", "🤷"},
                                                                  {"facepalm", "🤦"},
                                                                  {"wink", "😉"},
                                                                  {"blush", "😊"},
                                                                  {"sunglasses", "😎"},
                                                                  {"scream", "😱"},
                                                                  {"skull", "💀"},
                                                                  {"poop", "💩"},
                                                                  {"hankey", "💩"},
                                                                  {"ghost", "👻"},
                                                                  {"alien", "👽"},
                                                                  {"robot", "🤖"},
                                                                  {"cat", "🐱"},
                                                                  {"dog", "🐶"},
                                                                  {"bug", "🐛"},
                                                                  {"bee", "🐝"},
                                                                  {"star", "⭐"},
                                                                  {"sparkles", "✨"},
                                                                  {"zap", "⚡"},
                                                                  {"boom", "💥"},
                                                                  {"coffee", "☕"},
                                                                  {"beer", "🍺"},
                                                                  {"pizza", "🍕"},
                                                                  {"cake", "🍰"},
                                                                  {"birthday", "🎂"},
                                                                  {"gift", "🎁"},
                                                                  {"balloon", "🎈"},
                                                                  {"bulb", "💡"},
                                                                  {"memo", "📝"},
                                                                  {"pencil", "📝"},
                                                                  {"lock", "🔒"},
                                                                  {"key", "🔑"},
                                                                  {"warning", "⚠️"},
                                                                  {"x", "❌"},
                                                                  {"white_check_mark", "✅"},
                                                                  {"question", "❓"},
                                                                  {"exclamation", "❗"},
                                                                  {"checkered_flag", "🏁"},
                                                                  {"rainbow_flag", "🏳️‍🌈"},
                                                                  {"de", "🇩🇪"},
                                                                  {"us", "🇺🇸"},
                                                                  {"gb", "🇬🇧"},
                                                                  {"uk", "🇬🇧"},
                                                                  {"satisfied", "😆"},
                                                                  {"laughing", "😆"},
                                                                  {"punch", "👊"},
                                                                  {"facepunch", "👊"},
                                                                  {"runner", "🏃"},
                                                                  {"running", "🏃"},
                                                                  {"orange", "🍊"},
                                                                  {"tangerine", "🍊"},
                                                                  {"knife", "🔪"},
                                                                  {"lantern", "🏮"},
                                                                  {"shoe", "👞"},
                                                                  {"email", "📧"},
                                                                  {"hash", "#️⃣"},
                                                                  {"one", "1️⃣"},
                                                                  {"infinity", "♾️"},
                                                                  {"crossed_fingers", "🤞"}};
  for (const auto& [query, replacement] : known) expectFirst(query, replacement);
}

TEST_F(SearchOverShippedData, GuessesFromTheFirstLetters) {
  const std::vector<std::pair<std::string, std::string>> known = {
      {"smi", "😄"},  {"SMI", "😄"},      {"hea", "❤️"}, {"thu", "👍"},       {"rof", "🤣"},
      {"tad", "🎉"},  {"fir", "🔥"},      {"rocke", "🚀"},    {"eye", "👁️"}, {"party", "🥳"},
      {"laug", "😆"}, {"think", "🤔"}, {"hello", "👋"},    {"happy", "😀"},     {"thanks", "🙏"},
      {"lol", "🍭"},  {"hug", "🤗"},   {"danc", "💃"}};
  for (const auto& [query, replacement] : known) expectFirst(query, replacement);
  EXPECT_EQ(search("roc", 2), (std::vector<std::string>{"🪨", "🚀"}));
}

TEST_F(SearchOverShippedData, KnowsTheNewestEmoji) {
  const std::vector<std::pair<std::string, std::string>> known = {
      {"hairy_creature", "\U0001FAC8"}, {"orca", "\U0001FACD"},
      {"landslide", "\U0001F6D8"},      {"trombone", "\U0001FA8A"},
      {"treasure_chest", "\U0001FA8E"}, {"distorted_face", "\U0001FAEA"},
      {"fight_cloud", "\U0001FAEF"},    {"ballet_dancer", "\U0001F9D1\u200D\U0001FA70"}};
  for (const auto& [query, replacement] : known) expectFirst(query, replacement);
}

TEST_F(SearchOverShippedData, FindsTheKaomojiByTheirNames) {
  const std::vector<std::pair<std::string, std::string>> known = {
      {"shruggie", "¯\\_(ツ)_/¯"}, {"tableflip", "(╯°□°)╯︵ ┻━┻"}, {"unflip", "┬─┬ノ( º _ ºノ)"},
      {"lenny", "( ͡° ͜ʖ ͡°)"},       {"disapproval", "ಠ_ಠ"},         {"kao", "(^_−)☆"}};
  for (std::size_t i = 0; i + 1 < known.size(); ++i) expectFirst(known[i].first, known[i].second);
  EXPECT_EQ(search("shrug", 2), (std::vector<std::string>{"🤷", "¯\\_(ツ)_/¯"}));
}

}  // namespace
}  // namespace tessarin
