#include "platform/freedesktop/TrustRecord.h"
#include "support/Eventually.h"
#include "support/LogRecorder.h"
#include "support/ManualMainQueue.h"
#include "support/TemporaryFolder.h"

namespace tessarin::testing {
namespace {

using freedesktop::TrustRecord;

TEST(WatchedTrust, FollowsTheLastAnswerWhoeverGaveItAndWhateverBecomesOfItsFolder) {
  namespace fs = std::filesystem;
  const TemporaryFolder folder;
  const fs::path config = folder / "home/config";
  const TrustRecord commandLine(config);
  ManualMainQueue queue;
  LogRecorder log;
  freedesktop::WatchedTrust running(queue, config);
  std::vector<bool> told;
  const auto observer = running.onChange([&] { told.push_back(running.isTrusted()); });
  const auto becomes = [&](bool isTrusted) {
    return eventually([&] { return running.isTrusted() == isTrusted; }, [&] { queue.runReady(); });
  };
  const std::function<void()> takesBack[] = {
      [&] { commandLine.disallow(); },
      [&] { fs::remove(config / "trust"); },
      [&] { fs::remove_all(config); },
      [&] { fs::rename(config, folder / "elsewhere"); },
      [&] { fs::rename(folder / "home", folder / "away"); },
      [&] {
        fs::remove_all(config);
        folder.write("home/config", "a file in its place");
      },
  };
  EXPECT_FALSE(running.isTrusted());
  for (const auto& takeBack : takesBack) {
    EXPECT_TRUE(eventually([&] { return fs::is_directory(config); }, [&] { queue.runReady(); }));
    EXPECT_TRUE(commandLine.allow());
    EXPECT_TRUE(becomes(true));
    takeBack();
    EXPECT_TRUE(becomes(false));
  }
  fs::remove(config);
  running.allow();
  EXPECT_TRUE(running.isTrusted()) << "our own answer needs no watching";
  running.disallow();
  EXPECT_EQ(told.size(), 2 * (std::size(takesBack) + 1)) << "once a change";
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
