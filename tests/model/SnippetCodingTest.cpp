
#include "Matchers.h"
#include "base/DataError.h"
#include "model/SnippetCoding.h"

namespace tessarin::testing {
namespace {

const Snippet signature{"3F25",          "Mail / signature", "sig", "Kind regards,\nSam \"S\" \\ 👋",
                        {"mail", "a/b"}, "Custom",           false};

TEST(SnippetCoding, WritesTheUsersFileInOneLine) {
  EXPECT_EQ(encodeSnippets({signature}, JsonStyle::compact),
            R"([{"id":"3F25","name":"Mail \/ signature","trigger":"sig",)"
            R"("replacement":"Kind regards,\nSam \"S\" \\ 👋","keywords":["mail","a\/b"],)"
            R"("category":"Custom","isBuiltIn":false}])");
}

TEST(SnippetCoding, ReadsBackWhatItWrote) {
  const std::vector<Snippet> snippets = {
      signature, {"", "", "", "", {}, "", true}, {"é", "日本", "ʰ", "\t\x7F", {""}, "/", false}};
  for (const JsonStyle style : {JsonStyle::compact, JsonStyle::pretty}) {
    EXPECT_EQ(decodeSnippets(encodeSnippets(snippets, style)), snippets);
  }
}

TEST(SnippetCoding, TakesAnyOrderAndDropsUnknownKeys) {
  const auto snippets =
      decodeSnippets(R"([{"isBuiltIn":false,"trigger":"t","shelf":{"a":[1]},"category":"c","name":"n",)"
                     R"("keywords":[],"replacement":"a/b\/c","id":"i"}])");
  EXPECT_THAT(snippets, ElementsAre(Snippet{"i", "n", "t", "a/b/c", {}, "c", false}));
}

TEST(SnippetCoding, OneBadEntryFailsTheWholeTextAndIsNamed) {
  const std::string complete =
      R"({"id":"i","name":"n","trigger":"t","replacement":"r","keywords":["k"],"category":"c","isBuiltIn":true})";
  const struct {
    std::string part;
    const char* other;
    const char* problem;
  } cases[] = {
      {R"("id":"i",)", "", "\"id\""},
      {R"("name":"n")", R"("name":null)", "\"name\""},
      {R"(["k"])", R"(["k",1])", "\"keywords\""},
      {R"("isBuiltIn":true)", R"("isBuiltIn":1)", "\"isBuiltIn\""},
      {complete, "[]", "is not an object"},
  };
  for (const auto& [part, other, problem] : cases) {
    std::string damaged = complete;
    damaged.replace(damaged.find(part), part.size(), other);
    EXPECT_THAT([&] { decodeSnippets("[" + complete + "," + damaged + "]"); },
                ThrowsMessage<DataError>(AllOf(HasSubstr("entry 2"), HasSubstr(problem))))
        << other;
  }
}

TEST(SnippetCoding, RefusesToWriteWhatItCouldNotRead) {
  for (const std::string& bad : {std::string("\xC3("), std::string("a\0b", 3)}) {
    Snippet snippet = signature;
    snippet.keywords[0] = bad;
    EXPECT_THROW(encodeSnippets({snippet}, JsonStyle::compact), DataError);
  }
}

TEST(SnippetCoding, EmojiDataBecomesBuiltInSnippets) {
  const auto records = decodeEmojiData(
      R"([{"name":"waving hand","trigger":"wave","replacement":"👋","keywords":["hello","bye"],"category":"People"}])");
  EXPECT_EQ(records.at(0).toSnippet("emoji_"),
            (Snippet{"emoji_wave", "waving hand", "wave", "👋", {"hello", "bye"}, "People", true}));
  EXPECT_THROW(decodeEmojiData(R"([{"name":"waving hand"}])"), DataError);
}

TEST(Snippet, TextsInTwoNormalFormsAreTheSame) {
  const Snippet composed{"1", "caf\u00E9", "\u00E9", "\uAC00", {"\u1E69"}, "\u212B", false};
  const Snippet decomposed{"1", "cafe\u0301", "e\u0301", "\u1100\u1161", {"s\u0307\u0323"}, "A\u030A", false};
  EXPECT_EQ(composed, decomposed);
  EXPECT_EQ(hashValue(composed), hashValue(decomposed));
}

}  // namespace
}  // namespace tessarin::testing
