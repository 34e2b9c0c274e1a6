
#include <gtest/gtest.h>

#include "Matchers.h"
#include "main/CommandLine.h"
#include "main/Request.h"
#include "main/SnippetFiles.h"
#include "model/SnippetCoding.h"
#include "model/SnippetStore.h"
#include "platform/WallClock.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

using Action = CommandLine::Action;

CommandLine wrong(const std::string& problem) {
  return {.action = Action::wrongUsage, .argument = problem};
}

TEST(CommandLineTest, KnowsWhatItIsStartedForOrWhatIsWrong) {
  struct Case {
    std::vector<std::string> arguments;
    CommandLine line;
  };
  const Case cases[] = {
      {{}, {}},
      {{"--settings"}, {.action = Action::settings, .argument = ""}},
      // Arguments of options, byte for byte.
      {{"--import", "a b\n.json"}, {.action = Action::importFile, .argument = "a b\n.json"}},
      {{"--export=-=.json"}, {.action = Action::exportFile, .argument = "-=.json"}},
      {{"--json", "--limit", "20", "--search", "x"},
       {.action = Action::search, .argument = "x", .json = true, .limit = 20}},
      {{"--quiet"}, wrong("unknown option --quiet")},
      {{"file.json"}, wrong("unexpected argument file.json")},
      {{"--", "--quit"}, wrong("unexpected argument --quit")},
      {{"--allow=yes"}, wrong("--allow takes no argument")},
      {{"--import"}, wrong("--import needs an argument: FILE")},
      {{"--import="}, wrong("--import needs a file")},
      {{"--json"}, wrong("--json needs --search")},
      {{"--limit", "0", "--search", "a"}, wrong("--limit needs a number from 1 on")},
      {{"--limit=99999999999999999999", "--search", "a"}, wrong("--limit needs a number from 1 on")},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(::testing::PrintToString(expected.arguments));
    const CommandLine line = CommandLine::parse(expected.arguments);
    EXPECT_EQ(line, expected.line) << line.argument;
  }
}

using Kind = Request::Kind;

TEST(Request, TravelsInOneLineWhateverThePath) {
  const Request requests[] = {
      {Kind::settings, {}},
      {Kind::importFile, "/home/ä 😀/a%41.json"},
      {Kind::exportFile, "/a\nb\r\t\x01\x7f\xff%"},
      {Kind::importFile, "/" + std::string(4095, '\n')},
  };
  for (const Request& request : requests) {
    const std::string line = request.encoded();
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(Request::decode(line), request) << line;
  }
}

TEST(Request, AnythingElseIsNone) {
  for (const char* line :
       {"", "toggl", "toggle now", " quit", "import", "import a.json", "import /a%", "import /a%4x"}) {
    EXPECT_EQ(Request::decode(line), std::nullopt) << line;
  }
}

TEST(Answer, TravelsInOneLine) {
  for (const Answer& answer :
       {Answer{true, "Imported 3 snippets"}, Answer{true, ""}, Answer{false, "cannot read /a\nb%: done "}}) {
    EXPECT_EQ(answer.encoded().find('\n'), std::string::npos);
    EXPECT_EQ(Answer::decode(answer.encoded()), answer);
  }
  EXPECT_EQ(Answer::decode("unknown request"), (Answer{false, "unknown request"}));
  EXPECT_EQ(Answer::decode("done %"), (Answer{false, "done %"}));
}

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

TEST_F(SnippetFilesTest, NothingIsExportedWhereTheUsersSnippetsCouldNotBeRead) {
  folder.write("backup.json", "all that is left");
  std::filesystem::create_directory(folder / "storage");
  folder.write("storage/user-snippets.json", "[");
  SnippetStore unread({.resources = folder.path(), .storage = folder / "storage"}, clock);
  for (const char* added : {"one", "two"}) {
    const Answer answer = exportSnippets(unread, folder / "backup.json");
    EXPECT_FALSE(answer.isSuccess);
    EXPECT_THAT(answer.text,
                StartsWith("Export failed: your snippets could not be read when Tessarin started: "
                           "ends too early"));
    unread.addSnippet(snippet(added, "though saved, it is not all that there was"));
  }
  EXPECT_EQ(folder.read("backup.json"), "all that is left");
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
