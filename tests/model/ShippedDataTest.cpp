#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "Matchers.h"
#include "base/Files.h"
#include "model/SearchIndex.h"
#include "model/SkinToneVariants.h"
#include "model/SnippetCoding.h"
#include "text/Graphemes.h"

namespace tessarin::testing {
namespace {

std::vector<Snippet> load(const std::string& file) {
  std::vector<Snippet> snippets;
  for (const EmojiData& data :
       decodeEmojiData(readFile(std::string(TESSARIN_SOURCE_DIR) + "/resources/" + file))) {
    snippets.push_back(data.toSnippet(""));
  }
  return snippets;
}

const std::vector<Snippet>& emoji() {
  static const std::vector<Snippet> snippets = load("emoji-data.json");
  return snippets;
}

std::vector<Snippet> everything() {
  std::vector<Snippet> all = emoji();
  for (const Snippet& s : load("kaomoji-data.json")) all.push_back(s);
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

TEST(ShippedData, IsCompleteAndHasNothingTwice) {
  EXPECT_GT(emoji().size(), 1900U);
  EXPECT_GE(everything().size(), emoji().size() + 300U);
  std::set<std::string> triggers;
  std::set<std::string> replacements;
  for (const Snippet& s : everything()) {
    EXPECT_FALSE(s.name.empty() || s.replacement.empty() || s.category.empty()) << s.trigger;
    EXPECT_TRUE(isTypable(s.trigger)) << s.trigger;
    EXPECT_TRUE(triggers.insert(text::lowercased(s.trigger)).second) << s.trigger;
    EXPECT_TRUE(replacements.insert(text::normalized(s.replacement)).second) << s.replacement;
    const std::set<std::string> keywords(s.keywords.begin(), s.keywords.end());
    EXPECT_EQ(keywords.size(), s.keywords.size()) << s.trigger;
    for (const std::string& keyword : keywords)
      EXPECT_TRUE(isTypable(keyword)) << s.trigger << ": " << keyword;
  }
}

TEST(ShippedData, EmojiAreSingleAndWithoutSkinTone) {
  for (const Snippet& s : emoji()) {
    EXPECT_EQ(text::characterCount(s.replacement), 1U) << s.trigger;
    for (const char* tone : {"\U0001F3FB", "\U0001F3FC", "\U0001F3FD", "\U0001F3FE", "\U0001F3FF"}) {
      EXPECT_EQ(s.replacement.find(tone), std::string::npos) << s.trigger;
    }
    EXPECT_FALSE(s.name.starts_with("regional indicator")) << s.name;
  }
}

TEST(ShippedData, IsFoundByWhatUsersType) {
  const std::vector<Snippet> all = everything();
  SearchIndex index;
  for (const Snippet& s : all) index.append(s);
  const auto expectFirst = [&](const std::string& query, const std::string& replacement) {
    const auto found = index.search(query, 1);
    ASSERT_FALSE(found.empty()) << query;
    EXPECT_EQ(all[found[0]].replacement, replacement) << query;
  };
  // Shortcodes, first letters and keywords, the newest emoji.
  std::istringstream known(R"(
      smile 😄  grinning 😀  wave 👋  tada 🎉  +1 👍  -1 👎  thumbsup 👍  rofl 🤣  heart ❤️  joy 😂
      fire 🔥  eyes 👀  rocket 🚀  pray 🙏  100 💯  ok_hand 👌  sob 😭  thinking 🤔  shrug 🤷
      smi 😄  SMI 😄  hea ❤️  thu 👍  rof 🤣  rocke 🚀  eye 👁️  party 🥳  laug 😆  think 🤔  hello 👋
      happy 😀  thanks 🙏  lol 🍭
      hairy_creature 🫈  trombone 🪊  distorted_face 🫪  ballet_dancer 🧑‍🩰)");
  for (std::string query, replacement; known >> query >> replacement;) expectFirst(query, replacement);
  expectFirst("shruggie", "¯\\_(ツ)_/¯");
  expectFirst("tableflip", "(╯°□°)╯︵ ┻━┻");
  expectFirst("lenny", "( ͡° ͜ʖ ͡°)");
  expectFirst("disapproval", "ಠ_ಠ");
  const auto shrugs = index.search("shrug", 2);
  EXPECT_EQ(all[shrugs.at(1)].replacement, "¯\\_(ツ)_/¯");
}

TEST(SkinToneVariants, StandForOneCharacter) {
  EXPECT_THAT(makeSkinToneVariants("👋"),
              ElementsAre("👋", "👋\U0001F3FB", "👋\U0001F3FC", "👋\U0001F3FD", "👋\U0001F3FE", "👋\U0001F3FF"));
  for (const char* text : {"😀", "👩‍🚀", "🇩🇪", "e\u0301"}) EXPECT_TRUE(supportsSkinTones(text)) << text;
  for (const char* text : {"", "ab", "👋👋", "\r\n", "🇩🇪🇫🇷"}) {
    EXPECT_FALSE(supportsSkinTones(text)) << text;
    EXPECT_THAT(makeSkinToneVariants(text), ElementsAre(text));
  }
}
}  // namespace
}  // namespace tessarin::testing
