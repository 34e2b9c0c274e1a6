#include "Matchers.h"
#include "main/SnippetFiles.h"
#include "model/SnippetCoding.h"
#include "model/SnippetStore.h"
#include "platform/WallClock.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

class SnippetFilesTest : public ::testing::Test {
 protected:
  static Snippet snippet(const std::string& trigger, const std::string& replacement) {
    return {"id-" + trigger, "the " + trigger, trigger, replacement, {}, "Custom", false};
  }
  void writeImport(const std::vector<Snippet>& snippets) {
    folder.write("import.json", encodeSnippets(snippets, JsonStyle::compact));
  }

  TemporaryFolder folder;
  LogRecorder log;
  SystemWallClock clock;
  SnippetStore store{{.resources = folder.path(), .storage = folder / "storage"}, clock};
};

TEST_F(SnippetFilesTest, AnImportSaysThatItIsNotYetOnTheDisk) {
  folder.write("storage", "a file where the folder should be");
  writeImport({snippet("one", "1")});
  for (int attempt = 0; attempt < 2; ++attempt) {
    const Answer answer = importSnippets(store, folder / "import.json");
    EXPECT_FALSE(answer.isSuccess);
    EXPECT_THAT(answer.text, StartsWith("Not saved: cannot create "));
    EXPECT_EQ(store.userSnippets().size(), 1U);
  }
  std::filesystem::remove(folder / "storage");
  EXPECT_EQ(importSnippets(store, folder / "import.json"), (Answer{true, "Imported 0 snippets"}));
  EXPECT_EQ(decodeSnippets(folder.read("storage/user-snippets.json")), store.userSnippets());
}

TEST_F(SnippetFilesTest, SearchListsTheBestFirstOrGivesTheJsonOfAnExport) {
  store.addSnippet(snippet("smiles", "many\n\tlines\\"));
  store.addSnippet(snippet("smile", "😄"));
  const std::string best = "smile\t😄\tthe smile\n";
  EXPECT_EQ(searchResults(store, "smile", {.limit = 8}), best + "smiles\tmany\\n\\tlines\\\\\tthe smiles\n");
  EXPECT_EQ(searchResults(store, "smile", {.limit = 1}), best);
  EXPECT_EQ(searchResults(store, "nothing", {.limit = 8}), "");
  EXPECT_EQ(decodeSnippets(searchResults(store, "smiles", {.limit = 8, .json = true})),
            std::vector{store.userSnippets()[0]});
  EXPECT_EQ(searchResults(store, "nothing", {.limit = 8, .json = true}), "[]\n");
}

}  // namespace
}  // namespace tessarin::testing
