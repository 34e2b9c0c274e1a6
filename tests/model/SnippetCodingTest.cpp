#include <sys/stat.h>

#include <stdexcept>

#include "Matchers.h"
#include "base/DataError.h"
#include "model/SnippetCoding.h"
#include "model/SnippetDraft.h"
#include "model/SnippetFile.h"
#include "support/TemporaryFolder.h"

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
      signature, {"", "", "", "", {}, "", true}, {"é", "日本", "ʰ", {"\t\x7F\0.", 4}, {""}, "/", false}};
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
  Snippet snippet = signature;
  snippet.keywords[0] = "\xC3(";
  EXPECT_THROW(encodeSnippets({snippet}, JsonStyle::compact), DataError);
}

TEST(Snippet, TextsInTwoNormalFormsAreTheSame) {
  const Snippet composed{"1", "caf\u00E9", "\u00E9", "\uAC00", {"\u1E69"}, "\u212B", false};
  const Snippet decomposed{"1", "cafe\u0301", "e\u0301", "\u1100\u1161", {"s\u0307\u0323"}, "A\u030A", false};
  EXPECT_EQ(composed, decomposed);
  EXPECT_EQ(hashValue(composed), hashValue(decomposed));
}

namespace fs = std::filesystem;

TEST(SnippetFileTest, WhatHoldsNoSnippetsFailsWithOneSentence) {
  const TemporaryFolder folder;
  const auto write = [&](const std::string& content) {
    return [&folder, content] { folder.write("file", content); };
  };
  const struct {
    const char* name;
    std::function<void()> make;
    const char* problem;
  } cases[] = {
      {"missing", [] {}, "No such file"},
      {"half written", write(R"([{"id":"1","na)"), "ends too early"},
      {"one bad entry", write(R"([{"id":"1"}])"), "entry 1 lacks \"name\""},
      {"deep", write(R"([{"x":)" + std::string(10'000'000, '[')), "nested too deeply"},
      {"a folder", [&] { fs::create_directory(folder / "file"); }, "directory"},
      {"a pipe", [&] { ::mkfifo((folder / "file").c_str(), S_IRUSR | S_IWUSR); }, "not an ordinary file"},
      {"a device", [&] { fs::create_symlink("/dev/zero", folder / "file"); }, "not an ordinary file"},
      {"huge",
       [&] {
         folder.write("file", "[");
         fs::resize_file(folder / "file", largestSnippetFile + 1);
       },
       "larger than 512 MB"},
  };
  for (const auto& c : cases) {
    c.make();
    EXPECT_THAT([&] { readSnippetFile(folder / "file"); },
                ThrowsMessage<std::runtime_error>(HasSubstr(c.problem)))
        << c.name;
    fs::remove_all(folder / "file");
  }
}

TEST(SnippetFileTest, ManyMegabytesAreNoReasonToRefuse) {
  const TemporaryFolder folder;
  folder.write("file", "[" + std::string(std::size_t{100} << 20, ' ') + "]");
  EXPECT_THAT(readSnippetFile(folder / "file"), IsEmpty());
}

TEST(SnippetDraftTest, ATriggerKeepsLettersNumbersAndTwoSigns) {
  const struct {
    const char* text;
    const char* kept;
  } cases[] = {
      {":my wave!", "mywave"},
      {"Été_1-2", "Été_1-2"},
      {"\u0301a", "a"},     // marks go without a letter
      {"_\u0301-b", "-b"},  // a sign with a mark is another character
      {"привет, 日本 हिन्दी½٣Ⅷ", "привет日本हिन्दी½٣Ⅷ"},
      {"a\xffz", "az"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(filteredTrigger(c.text), c.kept) << c.text;
    EXPECT_EQ(filteredTrigger(c.kept), c.kept) << c.text;
  }
}

}  // namespace
}  // namespace tessarin::testing
