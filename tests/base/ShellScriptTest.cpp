#include <gtest/gtest.h>
#include <signal.h>

#include <fstream>

#include "base/ShellScript.h"
#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

TEST(ShellScript, TellsHowItEnded) {
  EXPECT_TRUE(runShellScript("exit 0"));
  EXPECT_FALSE(runShellScript("exit 3"));
  EXPECT_FALSE(runShellScript("kill -9 $$"));
}

TEST(ShellScript, TakesArgumentsAsTheyAre) {
  const TemporaryFolder folder;
  const std::string argument = "a b\n$(c) \"d\" 'e' *";
  EXPECT_TRUE(runShellScript("printf %s \"$2\" >\"$1\"", {folder / "out", argument}));
  EXPECT_EQ(folder.read("out"), argument);
}

TEST(ShellScript, SignalsReachWhatItLeavesRunning) {
  const TemporaryFolder folder;
  sigset_t blocked;
  sigset_t before;
  sigemptyset(&blocked);
  sigaddset(&blocked, SIGTERM);
  pthread_sigmask(SIG_BLOCK, &blocked, &before);
  const bool isStarted = runShellScript("sleep 600 & echo $! >\"$1\"", {folder / "pid"});
  pthread_sigmask(SIG_SETMASK, &before, nullptr);
  ASSERT_TRUE(isStarted);
  const pid_t left = std::stoi(folder.read("pid"));
  ASSERT_EQ(kill(left, SIGTERM), 0);
  const bool hasEnded = eventually([&] {
    std::ifstream status("/proc/" + std::to_string(left) + "/stat");
    std::string number, name, state;
    return !(status >> number >> name >> state) || state == "Z";
  });
  EXPECT_TRUE(hasEnded);
  if (!hasEnded) kill(left, SIGKILL);
}

}  // namespace
}  // namespace tessarin::testing
