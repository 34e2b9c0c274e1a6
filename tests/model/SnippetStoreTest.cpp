#include <fstream>

#include "Matchers.h"
#include "base/DataError.h"
#include "base/Files.h"
#include "model/SnippetCoding.h"
#include "model/SnippetFile.h"
#include "model/SnippetStore.h"
#include "support/LogRecorder.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;

constexpr const char* emojiJson =
    R"([{"name":"smile","trigger":"smile","replacement":"😀","keywords":["happy"],"category":"People"},)"
    R"({"name":"smirk","trigger":"smirk","replacement":"😏","keywords":[],"category":"People"}])";
constexpr const char* kaomojiJson =
    R"([{"name":"shrug","trigger":"shrug","replacement":"¯\\_(ツ)_/¯","keywords":[],"category":"Kaomoji"}])";

Snippet mine(const std::string& id, const std::string& trigger) {
  return {id, "Name of " + trigger, trigger, "text of " + trigger, {"word"}, "Custom", false};
}

std::vector<std::string> triggersOf(const std::vector<Snippet>& snippets) {
  std::vector<std::string> triggers;
  for (const Snippet& snippet : snippets) triggers.push_back(snippet.trigger);
  return triggers;
}

class SnippetStoreTest : public ::testing::Test {
 protected:
  SnippetStoreTest() {
    fs::create_directory(folder_ / "resources");
    fs::create_directory(folder_ / "storage");
    folder_.write("resources/emoji-data.json", emojiJson);
    folder_.write("resources/kaomoji-data.json", kaomojiJson);
  }
  std::unique_ptr<SnippetStore> makeStore() const {
    return std::make_unique<SnippetStore>(SnippetStore::Folders{folder_ / "resources", folder_ / "storage"},
                                          clock_, LocalCalendar("UTC"));
  }
  /// A store with the built-in entries and the user's snippets "1" (sig) and "2" (sign).
  std::unique_ptr<SnippetStore> makeStoreWithTwo() {
    writeUserFile({mine("1", "sig"), mine("2", "sign")});
    auto store = makeStore();
    log_.clear();
    return store;
  }
  void writeUserFile(const std::vector<Snippet>& snippets) const {
    folder_.write(userFile, encodeSnippets(snippets, JsonStyle::compact));
  }
  std::vector<Snippet> saved() const { return decodeSnippets(folder_.read(userFile)); }

  static constexpr const char* userFile = "storage/user-snippets.json";
  TemporaryFolder folder_;
  ManualWallClock clock_{ManualWallClock::utc(2026, 11, 22, 10, 15)};
  LogRecorder log_;
};

TEST_F(SnippetStoreTest, LoadsEverythingInOrder) {
  writeUserFile({mine("x", "sig")});
  const auto store = makeStore();
  EXPECT_THAT(log_.lines(), ElementsAre("[SnippetStore] Loaded 2 built-in emojis",
                                        "[SnippetStore] Loaded 1 built-in kaomoji",
                                        "[SnippetStore] Loaded 1 user snippets"));
  EXPECT_THAT(triggersOf(store->allSnippets()), ElementsAre("smile", "smirk", "shrug", "sig"));
  EXPECT_EQ(store->builtInSnippets()[1], (Snippet{"emoji_smirk", "smirk", "smirk", "😏", {}, "People", true}));
  EXPECT_EQ(store->builtInSnippets()[2].id, "kaomoji_shrug");
  EXPECT_EQ(store->userSnippets()[0], mine("x", "sig"));
}

TEST_F(SnippetStoreTest, EachLoadingStepFailsByItself) {
  const std::string wrong = R"([{"name":"only"}])";
  fs::remove(folder_ / "resources/emoji-data.json");
  folder_.write("resources/kaomoji-data.json", wrong);
  folder_.write(userFile, wrong);
  EXPECT_THAT(makeStore()->userSnippets(), IsEmpty());
  EXPECT_THAT(log_.lines(),
              ElementsAre("[SnippetStore] emoji-data.json not found in bundle",
                          StartsWith("[SnippetStore] Failed to load kaomoji data: entry 1 lacks"),
                          StartsWith("[SnippetStore] Failed to load user snippets: entry 1 lacks")));
  EXPECT_EQ(folder_.read(userFile), wrong);
}

TEST_F(SnippetStoreTest, TakesUpWhatItCanReadOfTheUsersLanguages) {
  fs::create_directory(folder_ / "resources/emoji-words");
  folder_.write("resources/emoji-words/da.txt", "smil\tglad\n");
  folder_.write("resources/emoji-words/fr.txt", "\xff\n\n");
  folder_.write("resources/emoji-words/de.txt", "Lächeln\tfroh\n\n");
  const auto store = makeStore();
  log_.clear();
  store->learnLanguages({"da", "fr", "fr-CA", "../emoji-words/de", "de"});
  EXPECT_THAT(log_.lines(),
              ElementsAre("[SnippetStore] Failed to load emoji words of da: not a line for each emoji",
                          "[SnippetStore] Failed to load emoji words of fr: not valid UTF-8",
                          "[SnippetStore] Loaded emoji words of de"));
  for (const char* query : {"froh", "lächeln", "lacheln", "smile"})
    EXPECT_THAT(triggersOf(store->search(query, 8)), ElementsAre("smile")) << query;
  EXPECT_EQ(store->builtInSnippets()[0],
            (Snippet{"emoji_smile", "Lächeln", "smile", "😀", {"happy"}, "People", true}));
  EXPECT_EQ(store->builtInSnippets()[1].name, "smirk");
}

TEST_F(SnippetStoreTest, EveryChangeIsSavedAndTold) {
  fs::remove_all(folder_ / "storage");
  const auto store = makeStore();
  std::vector<std::size_t> told;
  const auto willChange = store->onWillChange([&] { told.push_back(store->userSnippets().size()); });
  const auto changed = store->onChange([&] { told.push_back(store->userSnippets().size()); });
  const auto expectNow = [&](const std::vector<std::string>& triggers) {
    EXPECT_EQ(triggersOf(store->userSnippets()), triggers);
    EXPECT_EQ(saved(), store->userSnippets());
  };
  store->addSnippet(mine("1", "sig"));
  store->addSnippet(mine("1", "smile"));
  store->addSnippet(mine("2", "sign"));
  expectNow({"sig", "smile", "sign"});
  store->updateSnippet(mine("1", "changed"));
  expectNow({"changed", "smile", "sign"});
  for (const char* id : {"emoji_smile", "unknown"}) store->updateSnippet(mine(id, "x"));
  store->deleteSnippet(store->userSnippets()[0].id);
  expectNow({"sign"});
  EXPECT_THAT(told, ElementsAre(0U, 1U, 1U, 2U, 2U, 3U, 3U, 3U, 3U, 1U));
}

TEST_F(SnippetStoreTest, SearchFollowsEveryChange) {
  const auto store = makeStoreWithTwo();
  const auto found = [&](const char* query) { return triggersOf(store->search(query, 8)); };
  EXPECT_THAT(found("si"), ElementsAre("sig", "sign"));
  store->addSnippet(mine("3", "sib"));
  EXPECT_THAT(found("si"), ElementsAre("sig", "sib", "sign"));
  store->updateSnippet(mine("1", "silo"));
  EXPECT_THAT(found("si"), ElementsAre("sib", "silo", "sign"));
  store->deleteSnippet("3");
  EXPECT_THAT(found("si"), ElementsAre("silo", "sign"));
  store->usageTracker().recordUsage("sign");
  EXPECT_THAT(found("si"), ElementsAre("sign", "silo"));
  store->usageTracker().recordUsage("smirk");
  EXPECT_THAT(found("smi"), ElementsAre("smirk", "smile"));
  EXPECT_THAT(triggersOf(makeStore()->search("smi", 8)), ElementsAre("smirk", "smile")) << "from the start";
}

TEST_F(SnippetStoreTest, ImportAddsWhatHasANewTrigger) {
  const auto store = makeStoreWithTwo();
  Snippet builtIn = mine("theirs", "twice");
  builtIn.isBuiltIn = true;
  folder_.write("import.json",
                encodeSnippets({mine("1", "smile"), mine("2", "Sig"), builtIn, mine("4", "sig"), builtIn},
                               JsonStyle::compact));
  EXPECT_EQ(store->addImported(readSnippetFile(folder_ / "import.json")), 3U);
  EXPECT_THAT(triggersOf(store->userSnippets()), ElementsAre("sig", "sign", "Sig", "twice", "twice"));
  EXPECT_EQ(saved(), store->userSnippets());
  Snippet made = mine(store->userSnippets()[3].id, "twice");
  EXPECT_EQ(made.id.size(), 36U);
  EXPECT_NE(made.id, store->userSnippets()[4].id);
  EXPECT_EQ(store->userSnippets()[3], made);
}

TEST_F(SnippetStoreTest, ImportingTheUsersOwnExportWritesNothing) {
  const auto store = makeStoreWithTwo();
  EXPECT_THROW(store->exportSnippets(folder_ / "missing/export.json"), std::runtime_error);
  store->exportSnippets(folder_ / "export.json");
  EXPECT_EQ(folder_.read("export.json"), encodeSnippets(store->userSnippets(), JsonStyle::pretty));
  fs::remove(folder_ / userFile);
  EXPECT_EQ(store->addImported(readSnippetFile(folder_ / "export.json")), 0U);
  folder_.write("bad.json", "[1]");
  EXPECT_THROW(readSnippetFile(folder_ / "bad.json"), DataError);
  EXPECT_THROW(readSnippetFile(folder_ / "missing.json"), std::runtime_error);
  EXPECT_FALSE(fs::exists(folder_ / userFile));
  EXPECT_EQ(store->userSnippets().size(), 2U);
}

TEST_F(SnippetStoreTest, UnreadableFilesSurviveSeveralLaunches) {
  const std::string aside = "user-snippets.json.unreadable-2026-11-22T10-15-00";
  const std::vector<std::string> names = {aside, aside + "-2", aside + "-3"};
  for (std::size_t launch = 0; launch < names.size(); ++launch) {
    const std::string content = "broken " + std::to_string(launch);
    folder_.write(userFile, content);
    const auto store = makeStore();
    EXPECT_EQ(folder_.read(userFile), content);
    log_.clear();
    store->addSnippet(mine("1", "sig"));
    store->addSnippet(mine("2", "sign"));
    EXPECT_THAT(log_.lines(), ElementsAre("[SnippetStore] Moved the unreadable user-snippets.json to " +
                                          (folder_ / ("storage/" + names[launch])).string()));
    EXPECT_EQ(saved().size(), 2U);
  }
  for (std::size_t launch = 0; launch < names.size(); ++launch) {
    EXPECT_EQ(folder_.read("storage/" + names[launch]), "broken " + std::to_string(launch));
  }
}

TEST_F(SnippetStoreTest, WhatAnotherProgramHasWrittenSinceIsMovedAsideBeforeASave) {
  const fs::path file = folder_ / userFile;
  const std::string ours = encodeSnippets({mine("1", "sig")}, JsonStyle::compact);
  const std::string sameSize(ours.size(), 'x');
  struct Case {
    std::string before, theirs;
    bool isLink, isMoved;
  };
  for (const auto& [before, theirs, isLink, isMoved] :
       {Case{ours, ours, false, false}, Case{ours, sameSize, false, true}, Case{ours, sameSize, true, true},
        Case{"", "new", false, true}}) {
    SCOPED_TRACE(theirs + (isLink ? " behind a link" : ""));
    fs::remove_all(folder_ / "storage");
    fs::create_directory(folder_ / "storage");
    if (!before.empty()) folder_.write(userFile, before);
    const auto store = makeStore();
    if (isLink) {
      fs::rename(file, folder_ / "storage/shared");
      fs::create_symlink("shared", file);
    }
    const auto time = before.empty() ? fs::file_time_type::clock::now() : fs::last_write_time(file);
    folder_.write(userFile, theirs);
    fs::last_write_time(file, time);  // not all file systems can tell moments apart
    log_.clear();
    for (const char* id : {"2", "3"}) store->addSnippet(mine(id, "sign"));
    EXPECT_EQ(saved(), store->userSnippets());
    EXPECT_EQ(fs::is_symlink(file), isLink);
    const std::string aside = (fs::canonical(file).string() + ".changed-2026-11-22T10-15-00");
    EXPECT_EQ(fs::exists(aside), isMoved);
    if (!isMoved) continue;
    EXPECT_EQ(readFile(aside), theirs);
    EXPECT_THAT(log_.lines(),
                ElementsAre("[SnippetStore] Moved user-snippets.json, which another program has "
                            "changed, to " +
                            aside));
  }
}

TEST_F(SnippetStoreTest, NothingIsOverwrittenWhenMovingAsideFails) {
  // A path so long that the file has room in it, and its longer name beside it has not.
  constexpr std::size_t longestPath = 4095;
  fs::path storage = folder_ / "storage";
  while (storage.string().size() + 250 < longestPath) storage /= std::string(200, 'd');
  storage /= std::string(
      longestPath - storage.string().size() - std::string("//user-snippets.json").size() - 4, 'e');
  fs::create_directories(storage);
  const fs::path file = storage / "user-snippets.json";
  std::ofstream(file) << "broken";
  SnippetStore store({folder_ / "resources", storage}, clock_);
  log_.clear();
  store.addSnippet(mine("1", "sig"));
  store.addSnippet(mine("2", "sign"));
  const auto line =
      AllOf(StartsWith("[SnippetStore] Failed to save user snippets: cannot move "), HasSubstr("aside"));
  EXPECT_THAT(log_.lines(), ElementsAre(line, line));
  EXPECT_EQ(readFile(file), "broken");
  EXPECT_EQ(std::distance(fs::directory_iterator(storage), {}), 1);
}

TEST_F(SnippetStoreTest, AFailedSaveChangesNothingInMemoryAndAFileThatCameBackIsMovedAsideFirst) {
  folder_.write(userFile, "broken");
  const auto store = makeStore();
  fs::rename(folder_ / "storage", folder_ / "kept");
  folder_.write("storage", "in the way");
  log_.clear();
  store->addSnippet(mine("1", "sig"));
  EXPECT_THAT(log_.lines(), ElementsAre(StartsWith("[SnippetStore] Failed to save user snippets: ")));
  EXPECT_EQ(store->userSnippets().size(), 1U);
  EXPECT_EQ(folder_.read("storage"), "in the way");
  fs::remove(folder_ / "storage");
  fs::rename(folder_ / "kept", folder_ / "storage");
  store->saveUserSnippets();
  EXPECT_EQ(folder_.read("storage/user-snippets.json.unreadable-2026-11-22T10-15-00"), "broken");
  EXPECT_EQ(saved().size(), 1U);
}

}  // namespace
}  // namespace tessarin::testing
