
#include "Matchers.h"
#include "model/SnippetDraft.h"

namespace tessarin::testing {
namespace {

TEST(SnippetDraftTest, ATriggerKeepsLettersNumbersAndTwoSigns) {
  const struct {
    const char* text;
    const char* kept;
  } cases[] = {
      {":my wave!", "mywave"},
      {"Été_1-2", "Été_1-2"},
      {"E\u0301te\u0301 x", "E\u0301te\u0301x"},  // marks stay with their letter
      {"\u0301a", "a"},                           // and go without one
      {"_\u0301-b", "-b"},                        // a sign with a mark is another character
      {"привет, 日本 हिन्दी½٣Ⅷ", "привет日本हिन्दी½٣Ⅷ"},
      {"a😀b👨‍👩‍👧c+/;.\t\n\\d", "abcd"},
      {"a\xffz", "az"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(filteredTrigger(c.text), c.kept) << c.text;
    EXPECT_EQ(filteredTrigger(c.kept), c.kept) << c.text;
  }
}

TEST(SnippetDraftTest, KeywordsStandBetweenCommas) {
  EXPECT_THAT(parseKeywords(" , ,,\t"), IsEmpty());
  EXPECT_THAT(parseKeywords(" a b ,   ,b,,c,"), ElementsAre("a b", "b", "c"));
}

TEST(SnippetDraftTest, AChangedSnippetKeepsItsIdAndBecomesCustom) {
  const Snippet imported{"ID", " Name ", "c++ x", "{{date}}", {"", "one", "two words", "one"}, "Code", true};
  const SnippetDraft draft = SnippetDraft::of(imported);
  EXPECT_EQ(draft.trigger, "cx");
  EXPECT_EQ(draft.keywords, ", one, two words, one");
  EXPECT_EQ(draft.makeSnippet(imported.id),
            (Snippet{"ID", " Name ", "cx", "{{date}}", {"one", "two words", "one"}, "Custom", false}));
  EXPECT_NE(draft.makeSnippet().id, draft.makeSnippet().id) << "a new one gets an id of its own";
}

}  // namespace
}  // namespace tessarin::testing
