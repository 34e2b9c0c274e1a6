#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "main/CommandLine.h"

namespace tessarin {
namespace {

using Action = CommandLine::Action;
using ::testing::EndsWith;
using ::testing::HasSubstr;

TEST(CommandLineTest, knowsWhatItIsStartedFor) {
  struct Case {
    std::vector<std::string> arguments;
    Action action;
    std::string unknownOption = "";
  };
  const Case cases[] = {
      {{}, Action::run},
      {{"--help"}, Action::help},
      {{"--version"}, Action::version},
      {{"--allow"}, Action::allow},
      {{"--disallow"}, Action::disallow},
      {{"--toggle"}, Action::toggle},
      {{"--quit"}, Action::quit},
      {{"--quiet"}, Action::unknown, "--quiet"},
      {{""}, Action::unknown, ""},
      {{"--allow=yes"}, Action::unknown, "--allow=yes"},
      // Doing one of two things would be a guess.
      {{"--allow", "--quit"}, Action::unknown, "--quit"},
      {{"--allow", "--nonsense", "--help"}, Action::unknown, "--nonsense"},
  };
  for (const Case& expected : cases) {
    SCOPED_TRACE(::testing::PrintToString(expected.arguments));
    const CommandLine line = CommandLine::parse(expected.arguments);
    EXPECT_EQ(line.action, expected.action);
    EXPECT_EQ(line.unknownOption, expected.unknownOption);
  }
}

TEST(CommandLineTest, explainsEveryOption) {
  const std::string text = usage();
  for (const char* option : {"--help", "--version", "--allow", "--disallow", "--toggle", "--quit"}) {
    EXPECT_THAT(text, ::testing::ContainsRegex("\n  " + std::string(option) + " +[a-z]")) << option;
  }
  EXPECT_THAT(text, HasSubstr("usage: tessarin"));
  EXPECT_THAT(text, EndsWith("\n"));
}

}  // namespace
}  // namespace tessarin
