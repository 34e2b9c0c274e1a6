#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/freedesktop/TrustRecord.h"
#include "support/LogRecorder.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

using freedesktop::TrustRecord;
using ::testing::IsEmpty;
using ::testing::Not;

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

TEST(TrustRecord, SaysWhenItCannotBeKept) {
  const TemporaryFolder folder;
  folder.write("blocked", "");
  LogRecorder log;
  EXPECT_FALSE(TrustRecord(folder / "blocked").allow());
  EXPECT_THAT(log.lines, Not(IsEmpty()));
}

}  // namespace
}  // namespace tessarin::testing
