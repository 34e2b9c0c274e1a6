#include <ctime>
#include <filesystem>

#include "Matchers.h"
#include "base/DataError.h"
#include "base/Files.h"
#include "importers/CsvSnippets.h"
#include "importers/EspansoMatches.h"
#include "importers/ForeignText.h"
#include "importers/SnippetImport.h"
#include "support/ManualWallClock.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

namespace fs = std::filesystem;

const fs::path samples = fs::path(TESSARIN_SOURCE_DIR) / "tests/data/import";
const ImportTerms german{.triggerCharacter = ":", .patterns = shortPatterns("de_DE")};

/// A line a snippet, then the notes.
std::string described(const ForeignSnippets& imported) {
  std::string text;
  for (const Snippet& snippet : imported.snippets) {
    text += snippet.trigger + " | " + snippet.name + " |";
    for (const std::string& keyword : snippet.keywords) text += " " + keyword;
    text += " | " + ::testing::PrintToString(snippet.replacement) + "\n";
  }
  return text + notesOf(imported);
}

/// What they become stands beside the samples.
TEST(Importers, MakeOfEachSampleWhatItMeans) {
  for (const char* name : {"espanso", "espanso/match/packages/greek/package.yml", "autokey",
                           "autokey/Mail/Regards.txt", "plain.csv", "header.csv", "tabs.tsv"}) {
    const std::string expected = fs::path(name).filename().string() + ".expected";
    EXPECT_EQ(described(readAnySnippets(samples / name, german)), readFile(samples / expected)) << name;
  }
}

TEST(Importers, SayInOneLineWhatCannotBeRead) {
  std::string aliases = "a: &a [";
  for (int i = 0; i < 2000; ++i) aliases += "x,";
  aliases += "x]\nmatches:\n";
  for (int i = 0; i < 2000; ++i) aliases += "- {triggers: *a}\n";
  struct Case {
    const char* file;
    std::string content, problem;
  };
  const Case cases[] = {
      {"a.yml", "matches: [\n", "not valid YAML (line 1)"},
      {"a.yml", "matches: [{trigger: a, replace: \"b", "not valid YAML (line 1)"},
      {"a.yaml", "matches:\n- trigger: \xff", "not valid UTF-8"},
      {"a.yml", "matches: []\n\x04more", "not valid YAML"},
      {"a.yml", ",", "holds more than one document"},
      {"a.yml", "matches: []\n---\nmatches: []\n", "holds more than one document"},
      {"a.yml", "[]", "the top level is not a list of members"},
      {"a.yml", "toggle_key: ALT\n", "the file holds no matches"},
      {"a.yml", std::string(100'000, '[') + "\n", "not valid YAML (line 1)"},
      {"a.yml", aliases, "holds more than could be meant"},
      {"a.yml", std::string((8U << 20) + 1, '#'), "the file is larger than 8 MB"},
      {"a.csv", "x,\"y\nz", "a quote is never closed (line 1)"},
      {"a.csv", "x,y\n\nz,\"a\nb\" c", "something stands behind a closing quote (line 4)"},
      {"a.csv", "x,\xc3", "not valid UTF-8"},
      {"unknown", "neither this\nnor that\n", "this kind of file cannot be imported"},
      {"unknown", "[1]", "entry 1 is not an object"},
  };
  const TemporaryFolder folder;
  for (const auto& [file, content, problem] : cases) {
    folder.write(file, content);
    try {
      readAnySnippets(folder / file, german);
      ADD_FAILURE() << "no error: " << problem;
    } catch (const DataError& error) {
      EXPECT_EQ(error.what(), problem);
    }
  }
}

TEST(Importers, FollowLinksInAFolderButNoCircle) {
  const TemporaryFolder folder;
  fs::create_directories(folder / "root/sub");
  fs::create_directory(folder / "elsewhere");
  folder.write("elsewhere/b.yml", "matches: [{trigger: b, replace: B}]");
  folder.write("root/sub/a.yml", "matches: [{trigger: a, replace: A}]");
  fs::create_directory_symlink("..", folder / "root/sub/up");
  fs::create_directory_symlink(folder / "elsewhere", folder / "root/link");
  fs::create_symlink("self.yml", folder / "root/self.yml");
  const std::string text = described(readAnySnippets(folder / "root", german));
  EXPECT_THAT(text, StartsWith("b | b | | \"B\"\na | a | | \"A\"\nLeft out: 1\n  self.yml: cannot read "));
  fs::remove_all(folder / "root/sub");
  EXPECT_THROW(readAnySnippets(folder / "root/sub", german), std::runtime_error);
  EXPECT_THROW(readAnySnippets(folder / "elsewhere/none", german), std::runtime_error);
}

TEST(Importers, TriggersLoseTheUsersTriggerCharacterOrAColon) {
  const std::pair<const char*, const char*> triggers[] = {
      {":smile:", "smile"}, {"smile;", "smile"}, {";:a", "a"}, {"::a::", "a"}, {"été-1_", "été-1_"}};
  for (const auto& [foreign, ours] : triggers) {
    ForeignSnippets taken;
    taken.take({"here", foreign, "text", "", {}}, {.triggerCharacter = ";"});
    ASSERT_EQ(taken.snippets.size(), 1U);
    EXPECT_EQ(taken.snippets[0].trigger, ours);
    EXPECT_EQ(taken.changed.size(), foreign[1] == ':' ? 1U : 0U) << foreign;
  }
}

/// At every moment the variables give what the format gives.
TEST(Importers, DatesBecomeVariablesOnlyWhereTheyAreTheSameToTheLetter) {
  struct Case {
    const char *locale, *format, *variables;
  };
  const Case cases[] = {{"de_DE", "%d.%m.%y", "{{date}}"},
                        {"de_DE", "am %d.%m.%y, %R.", "am {{datetime}}."},
                        {"de_DE", "%H:%M|%d.%m.%y", "{{time}}|{{date}}"},
                        {"de_DE", "%H:%M:%S", nullptr},
                        {"de_DE", "%d.%m.%Y", nullptr},
                        {"de_DE", "%%d.%m.%y", nullptr},
                        {"de_DE", "{{time}}", nullptr},
                        {"en_GB", "%d/%m/%Y", "{{date}}"},
                        {"en_US", "%-m/%-d/%y", "{{date}}"},
                        {"en_US", "%D", nullptr},
                        {"sv_SE", "%F", "{{date}}"},
                        {"th_TH", "%-d/%-m/%y", nullptr},
                        {"ar_EG", "%-d/%-m/%Y", nullptr}};
  for (const auto& [locale, format, variables] : cases) {
    const auto made = templateForDateFormat(format, {.patterns = shortPatterns(locale)});
    EXPECT_EQ(made, variables ? std::optional<std::string>(variables) : std::nullopt) << locale << format;
    if (!made) continue;
    for (const int hour : {3, 15}) {
      const ManualWallClock clock(ManualWallClock::utc(2026, 3, hour, hour, 7));
      std::tm time{};
      time.tm_min = 7;
      time.tm_hour = time.tm_mday = hour;
      time.tm_mon = 2;
      time.tm_year = 126;
      char expected[100];
      std::strftime(expected, sizeof expected, format, &time);
      EXPECT_EQ(expandTemplateVariables(*made, {clock, {}, locale, "UTC"}), expected);
    }
  }
}

}  // namespace
}  // namespace tessarin::testing
