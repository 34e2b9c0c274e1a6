#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/freedesktop/FolderLock.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"

namespace tessarin::freedesktop {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class FolderLockTest : public ::testing::Test {
 protected:
  testing::LogRecorder log;
  testing::TemporaryFolder parent;
  std::filesystem::path folder = parent / "share/tessarin";
};

TEST_F(FolderLockTest, makesTheFolderAndHoldsIt) {
  const auto lock = FolderLock::acquire(folder);
  ASSERT_TRUE(lock);
  EXPECT_FALSE(FolderLock::acquire(folder)) << "taken already";
  EXPECT_TRUE(FolderLock::acquire(parent / "another"));
  EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
  EXPECT_THAT(log.lines, IsEmpty());
}

TEST_F(FolderLockTest, letsGoAtItsEnd) {
  { const auto lock = FolderLock::acquire(folder); }
  EXPECT_TRUE(FolderLock::acquire(folder)) << "the file that stays behind locks nothing";
}

TEST_F(FolderLockTest, goesWithItsOwner) {
  auto lock = FolderLock::acquire(folder);
  const auto moved = std::move(lock);
  lock.reset();
  EXPECT_FALSE(FolderLock::acquire(folder));
}

TEST_F(FolderLockTest, isLetGoByAProcessThatIsKilled) {
  int ready[2];
  ASSERT_EQ(pipe(ready), 0);
  const pid_t child = fork();
  if (child == 0) {
    const auto lock = FolderLock::acquire(folder);
    const char isHeld = lock ? 'y' : 'n';
    if (write(ready[1], &isHeld, 1) != 1) _exit(1);
    for (;;) pause();
  }
  close(ready[1]);
  char isHeld = 0;
  EXPECT_EQ(read(ready[0], &isHeld, 1), 1);
  EXPECT_EQ(isHeld, 'y');
  EXPECT_FALSE(FolderLock::acquire(folder));
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_TRUE(FolderLock::acquire(folder));
  close(ready[0]);
}

TEST_F(FolderLockTest, aFolderThatCannotBeWrittenCountsAsHeld) {
  parent.write("share", "a file where the folder should be");
  EXPECT_TRUE(FolderLock::acquire(folder));
  EXPECT_THAT(log.lines, ElementsAre(StartsWith("[Tessarin] The data folder cannot be locked: ")));
}

TEST_F(FolderLockTest, followsNoLinkToAnotherFile) {
  std::filesystem::create_directories(folder);
  parent.write("precious", "");
  std::filesystem::create_symlink(parent / "precious", folder / "lock");
  const auto lock = FolderLock::acquire(folder);
  EXPECT_THAT(log.lines, ElementsAre(StartsWith("[Tessarin] The data folder cannot be locked: ")));
}

}  // namespace
}  // namespace tessarin::freedesktop
