#include <QLocale>

#include "Matchers.h"
#include "base/Translate.h"
#include "main/CommandLine.h"
#include "ui/Translations.h"

namespace tessarin::testing {
namespace {

using Action = CommandLine::Action;
using ::testing::ContainsRegex;

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
      {{"--"}, {}},
      {{"--settings"}, {.action = Action::settings, .argument = ""}},
      {{"--quit", "--"}, {.action = Action::quit, .argument = ""}},
      // Arguments of options, byte for byte.
      {{"--import", "a b\n.json"}, {.action = Action::importFile, .argument = "a b\n.json"}},
      {{"--export=-=.json"}, {.action = Action::exportFile, .argument = "-=.json"}},
      {{"--import", "--", "--json"}, {.action = Action::importFile, .argument = "--json"}},
      {{"--search", "smi"}, {.action = Action::search, .argument = "smi"}},
      {{"--search", ""}, {.action = Action::search, .argument = ""}},
      {{"--json", "--limit", "20", "--search", "x"},
       {.action = Action::search, .argument = "x", .json = true, .limit = 20}},
      {{"--quiet"}, wrong("unknown option --quiet")},
      {{"file.json"}, wrong("unexpected argument file.json")},
      {{"--", "--quit"}, wrong("unexpected argument --quit")},
      {{"--allow=yes"}, wrong("--allow takes no argument")},
      {{"--allow", "--quit"}, wrong("--quit cannot be combined")},
      {{"--import"}, wrong("--import needs an argument: FILE")},
      {{"--import", "--json"}, wrong("--import needs an argument: FILE")},
      {{"--import="}, wrong("--import needs a file")},
      {{"--export", ""}, wrong("--export needs a file")},
      {{"--import", "a", "b"}, wrong("unexpected argument b")},
      {{"--json"}, wrong("--json needs --search")},
      {{"--limit", "0", "--search", "a"}, wrong("--limit needs a number from 1 on")},
      {{"--limit=2x", "--search", "a"}, wrong("--limit needs a number from 1 on")},
      {{"--limit=99999999999999999999", "--search", "a"}, wrong("--limit needs a number from 1 on")},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(::testing::PrintToString(expected.arguments));
    const CommandLine line = CommandLine::parse(expected.arguments);
    EXPECT_EQ(line, expected.line) << line.argument;
  }
}

TEST(CommandLineTest, SpeaksTheLanguageOfTheUser) {
  const std::string english = usage();
  ui::installTerminalTranslations(QLocale(QLocale::German, QLocale::Germany));
  const std::string german = usage();
  EXPECT_EQ(CommandLine::parse({"--quiet"}), wrong("unbekannte Option --quiet"));
  EXPECT_EQ(CommandLine::parse({"--import"}), wrong("--import braucht ein Argument: DATEI"));
  ui::installTerminalTranslations(QLocale(QLocale::C));
  const std::string untranslated = usage();
  setTranslator(nullptr);
  EXPECT_THAT(german, HasSubstr("Aufruf: tessarin [OPTION]\n"));
  EXPECT_THAT(german, ContainsRegex("\n  --quit          beendet das laufende Programm\n"));
  for (const char* word : {"usage", "FILE", "show", "with"}) EXPECT_THAT(german, Not(HasSubstr(word)));
  EXPECT_EQ(untranslated, english);
}

}  // namespace
}  // namespace tessarin::testing
