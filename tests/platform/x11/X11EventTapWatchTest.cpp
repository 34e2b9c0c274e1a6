#include <gmock/gmock.h>

#include "TapFixture.h"
#include "support/Eventually.h"
#include "support/LogRecorder.h"

namespace tessarin::testing {
namespace {

using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::Not;

// A main thread that does not answer, and is given twenty seconds to, stands for a stopped process: the tap's
// thread answers neither the key nor the watcher.
using X11EventTapWatchTest = TapFixture;

TEST_F(X11EventTapWatchTest, FreesTheKeyboardOfATapThatStandsStill) {
  const std::pair<std::string, std::string> rows[] = {{"", ":"}, {":", "a"}};  // judged before, and held
  LogRecorder log;
  start();
  for (const auto& [judged, held] : rows) {
    SCOPED_TRACE(judged + held);
    log.clear();
    timeOuts = 0;
    typist->type(judged);
    ASSERT_TRUE(queue.runUntil([&] { return seen.size() == judged.size(); }));
    typist->type(held + "xyz");
    EXPECT_TRUE(eventually([&] { return document->text() == judged + held + "xyz"; })) << document->text();
    ASSERT_TRUE(queue.runUntil([this] { return timeOuts == 1; }));
    EXPECT_THAT(log.lines(), Contains(HasSubstr("stood still")));
    waitUntilWatching();
    typist->type(":a\n");
    expectDocument("😀");
    document->clear();
    seen.clear();
  }
}

// Neither the key's answer nor anything else would get through before the server listens again.
TEST_F(X11EventTapWatchTest, LeavesATapAloneThatWaitsForAServerKeptByAnother) {
  answerTime = std::chrono::seconds(3);  // and for as long the main thread waits until the key has gone
  LogRecorder log;
  start();
  typist->keepServer(true);
  typist->type(":");
  ASSERT_TRUE(queue.runUntil([this] { return !seen.empty(); }));
  typist->keepServer(false);
  typist->type("a\n");
  expectDocument("😀");
  EXPECT_THAT(log.lines(), Not(Contains(HasSubstr("stood still"))));
}

}  // namespace
}  // namespace tessarin::testing
