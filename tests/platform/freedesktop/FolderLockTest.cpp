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

TEST_F(FolderLockTest, makesTheFolderAndHoldsItToItsEnd) {
  auto lock = FolderLock::acquire(folder);
  ASSERT_TRUE(lock);
  EXPECT_FALSE(FolderLock::acquire(folder)) << "taken already";
  EXPECT_TRUE(FolderLock::acquire(parent / "another"));
  EXPECT_EQ(std::filesystem::status(folder).permissions(), std::filesystem::perms::owner_all);
  EXPECT_THAT(log.lines(), IsEmpty());
  lock.reset();
  EXPECT_TRUE(FolderLock::acquire(folder)) << "the file that stays behind locks nothing";
}

TEST_F(FolderLockTest, followsNoLinkToAnotherFile) {
  std::filesystem::create_directories(folder);
  parent.write("precious", "");
  std::filesystem::create_symlink(parent / "precious", folder / "lock");
  const auto lock = FolderLock::acquire(folder);
  EXPECT_THAT(log.lines(), ElementsAre(StartsWith("[Tessarin] The data folder cannot be locked: ")));
}

}  // namespace
}  // namespace tessarin::freedesktop
