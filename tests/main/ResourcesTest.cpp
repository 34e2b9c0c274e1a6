#include <gtest/gtest.h>

#include "main/Resources.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

TEST(ResourcesTest, standBesideItBehindALinkToo) {
  const TemporaryFolder build;
  std::filesystem::create_directory(build / "source");
  std::filesystem::create_directory_symlink("source", build / "resources");
  EXPECT_EQ(resourceFolder(build / "tessarin"), build / "resources");
}

}  // namespace
}  // namespace tessarin::testing
