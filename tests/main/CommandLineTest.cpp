
#include <gtest/gtest.h>

#include "Matchers.h"
#include "main/CommandLine.h"
#include "main/Request.h"
#include "main/SnippetCommands.h"
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
      {{"--list", "--json"}, {.action = Action::list, .argument = "", .json = true}},
      {{"--name", "my name", "--add", "sig", "--", "-- \n", "--keywords=a, b"},
       {.action = Action::add, .argument = "sig", .text = "-- \n", .name = "my name", .keywords = "a, b"}},
      {{"--add=sig", "a=b"}, {.action = Action::add, .argument = "sig", .text = "a=b"}},
      {{"--remove", "sig"}, {.action = Action::remove, .argument = "sig"}},
      {{"--add", "sig"}, wrong("--add needs an argument: TRIGGER TEXT")},
      {{"--remove", "sig", "--name", "x"}, wrong("--name needs --add")},
      {{"--quiet"}, wrong("unknown option --quiet")},
      {{"file.json"}, wrong("unexpected argument file.json")},
      {{"--", "--quit"}, wrong("unexpected argument --quit")},
      {{"--allow=yes"}, wrong("--allow takes no argument")},
      {{"--import"}, wrong("--import needs an argument: FILE")},
      {{"--import="}, wrong("--import needs a file")},
      {{"--json"}, wrong("--json needs --list/--search")},
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
      {Kind::importFile, {"/home/ä 😀/a%41.json"}},
      {Kind::exportFile, {"/a\nb\r\t\x01\x7f\xff%"}},
      {Kind::add, {"", std::string(4095, '\n'), "two words ", ""}},
  };
  for (const Request& request : requests) {
    const std::string line = request.encoded();
    EXPECT_EQ(line.find('\n'), std::string::npos);
    EXPECT_EQ(Request::decode(line), request) << line;
  }
}

TEST(Request, AnythingElseIsNone) {
  for (const char* line : {"", "toggl", "toggle now", " quit", "import", "import a.json", "import /a%",
                           "import /a%4x", "import /a b", "add a b c"}) {
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

class SnippetCommandsTest : public ::testing::Test {
 protected:
  static Snippet snippet(const std::string& trigger, const std::string& replacement) {
    return {"id-" + trigger, "the " + trigger, trigger, replacement, {}, "Custom", false};
  }
  void writeImport(const std::vector<Snippet>& snippets) {
    folder.write("import.json", encodeSnippets(snippets, JsonStyle::compact));
  }
  Answer importFrom(SnippetStore& into, const std::string& file) {
    return carryOut(into, {Kind::importFile, {folder / file}});
  }

  TemporaryFolder folder;
  LogRecorder log;
  SystemWallClock clock;
  SnippetStore store{{.resources = folder.path(), .storage = folder / "storage"}, clock};
};

TEST_F(SnippetCommandsTest, AnImportSaysThatItIsNotYetOnTheDisk) {
  folder.write("storage", "a file where the folder should be");
  writeImport({snippet("one", "1")});
  for (int attempt = 0; attempt < 2; ++attempt) {
    const Answer answer = importFrom(store, "import.json");
    EXPECT_FALSE(answer.isSuccess);
    EXPECT_THAT(answer.text, StartsWith("Not saved: cannot create "));
    EXPECT_EQ(store.userSnippets().size(), 1U);
  }
  std::filesystem::remove(folder / "storage");
  EXPECT_EQ(importFrom(store, "import.json"), (Answer{true, "Imported 0 snippets"}));
  EXPECT_EQ(decodeSnippets(folder.read("storage/user-snippets.json")), store.userSnippets());
}

TEST_F(SnippetCommandsTest, NothingIsExportedWhereTheUsersSnippetsCouldNotBeRead) {
  folder.write("backup.json", "all that is left");
  std::filesystem::create_directory(folder / "storage");
  folder.write("storage/user-snippets.json", "[");
  SnippetStore unread({.resources = folder.path(), .storage = folder / "storage"}, clock);
  for (const char* added : {"one", "two"}) {
    const Answer answer = carryOut(unread, {Kind::exportFile, {folder / "backup.json"}});
    EXPECT_FALSE(answer.isSuccess);
    EXPECT_THAT(answer.text,
                StartsWith("Export failed: your snippets could not be read when Tessarin started: "
                           "ends too early"));
    unread.addSnippet(snippet(added, "though saved, it is not all that there was"));
  }
  EXPECT_EQ(folder.read("backup.json"), "all that is left");
}

TEST_F(SnippetCommandsTest, AListHasALineEachOrIsTheJsonOfAnExport) {
  const std::vector snippets = {snippet("smile", "😄"), snippet("smiles", "many\n\tlines\\")};
  EXPECT_EQ(listed(snippets, false), "smile\t😄\tthe smile\nsmiles\tmany\\n\\tlines\\\\\tthe smiles\n");
  EXPECT_EQ(decodeSnippets(listed(snippets, true)), snippets);
  EXPECT_EQ(listed({}, false), "");
  EXPECT_EQ(listed({}, true), "[]\n");
}

TEST_F(SnippetCommandsTest, AddsAndRemovesByTriggerWhatCanBeTypedAndSaved) {
  store.addSnippet(snippet("other", "stays"));
  struct Step {
    Request request;
    Answer answer;
  };
  const Step steps[] = {
      {{Kind::add, {"sig", "-- \nme", "", ""}}, {true, "Added 1 snippet"}},
      {{Kind::add, {"sig", "x", "", ""}}, {false, "there is a snippet with the trigger sig already"}},
      {{Kind::add, {":a", "x", "", ""}}, {false, "a trigger has letters, digits, _ and - only"}},
      {{Kind::add, {"", "x", "", ""}}, {false, "a trigger has letters, digits, _ and - only"}},
      {{Kind::add, {"a", "", "", ""}}, {false, "a snippet needs a text"}},
      {{Kind::add, {"a", "x", "\xff", ""}}, {false, "the text is not UTF-8"}},
      {{Kind::add, {"été", "ü", "My name", "one, two,"}}, {true, "Added 1 snippet"}},
      {{Kind::remove, {"Sig"}}, {false, "no snippet of yours has the trigger Sig"}},
      {{Kind::remove, {"sig"}}, {true, "Removed 1 snippet"}},
  };
  for (const auto& [request, answer] : steps) EXPECT_EQ(carryOut(store, request), answer) << answer.text;
  const auto saved = decodeSnippets(folder.read("storage/user-snippets.json"));
  ASSERT_EQ(saved.size(), 2U);
  EXPECT_EQ(saved[1], (Snippet{saved[1].id, "My name", "été", "ü", {"one", "two"}, "Custom", false}));
}

}  // namespace
}  // namespace tessarin::testing
