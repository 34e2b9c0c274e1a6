#include "platform/freedesktop/TrustRecord.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

using freedesktop::TrustRecord;

TEST(TrustRecord, FollowsTheLastAnswerAlsoOfAnotherProcess) {
  const TemporaryFolder folder;
  const TrustRecord running(folder / "tessarin");
  const TrustRecord commandLine(folder / "tessarin");
  EXPECT_EQ(running.answer(), std::nullopt);
  EXPECT_FALSE(running.isTrusted());
  EXPECT_TRUE(commandLine.allow());
  EXPECT_TRUE(running.isTrusted());
  EXPECT_TRUE(commandLine.disallow());
  EXPECT_FALSE(running.isTrusted());
  EXPECT_EQ(running.answer(), false);
  EXPECT_TRUE(running.allow());
  EXPECT_TRUE(running.isTrusted());
}

TEST(TrustRecord, AnythingButAPlainYesIsNoPermission) {
  const TemporaryFolder folder;
  const TrustRecord record(folder.path());
  for (const char* content : {"", "yes", "yes\nno\n", "no\n", "true\n"}) {
    folder.write("trust", content);
    EXPECT_FALSE(record.isTrusted()) << content;
  }
}

}  // namespace
}  // namespace tessarin::testing
