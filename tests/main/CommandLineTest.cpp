
#include <gtest/gtest.h>

#include "main/CommandLine.h"

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

}  // namespace
}  // namespace tessarin::testing
