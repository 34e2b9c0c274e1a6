#include <gtest/gtest.h>

#include "main/Resources.h"
#include "support/TemporaryFolder.h"

namespace tessarin {
namespace {

TEST(ResourcesTest, standBesideItBehindALinkToo) {
  const testing::TemporaryFolder build;
  std::filesystem::create_directory(build / "source");
  std::filesystem::create_directory_symlink("source", build / "resources");
  EXPECT_EQ(resourceFolder(build / "tessarin"), build / "resources");
}

TEST(ResourcesTest, standUnderThePrefixOfAnInstalledProgram) {
  const testing::TemporaryFolder prefix;
  std::filesystem::create_directory(prefix / "bin");
  EXPECT_EQ(resourceFolder(prefix / "bin/tessarin"), prefix / "share/tessarin");
}

}  // namespace
}  // namespace tessarin
