#include <gtest/gtest.h>
#include <poll.h>

#include <cstdlib>
#include <filesystem>
#include <thread>

#include "platform/freedesktop/InstanceSocket.h"

namespace tessarin::freedesktop {
namespace {

class InstanceSocketTest : public ::testing::Test {
 protected:
  void SetUp() override {
    std::string pattern = (std::filesystem::temp_directory_path() / "tessarin-socket-XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
    setenv("XDG_RUNTIME_DIR", folder_.c_str(), 1);
  }
  void TearDown() override {
    unsetenv("XDG_RUNTIME_DIR");
    std::filesystem::remove_all(folder_);
  }

  /// Serves one request on this thread while another asks.
  static std::string served(const InstanceSocket& socket) {
    std::string seen;
    pollfd waiting{socket.descriptor(), POLLIN, 0};
    if (poll(&waiting, 1, 5000) == 1) {
      socket.serve([&](const std::string& request) {
        seen = request;
        return "done: " + request;
      });
    }
    return seen;
  }

  std::string folder_;
};

TEST_F(InstanceSocketTest, RequestReachesTheInstanceOfTheSameFolderOnly) {
  EXPECT_EQ(requestOfRunningInstance("/data/one", "toggle"), std::nullopt);
  const auto socket = InstanceSocket::listen("/data/one");
  ASSERT_TRUE(socket);
  EXPECT_EQ(requestOfRunningInstance("/data/two", "toggle"), std::nullopt);
  std::optional<std::string> answer;
  std::thread client([&] { answer = requestOfRunningInstance("/data/one", "toggle"); });
  EXPECT_EQ(served(*socket), "toggle");
  client.join();
  EXPECT_EQ(answer, "done: toggle");
}

TEST_F(InstanceSocketTest, TakesOverWhatAKilledInstanceLeftAndCleansUp) {
  std::filesystem::path left;
  {
    const auto killed = InstanceSocket::listen("/data/one");
    left = std::filesystem::directory_iterator(folder_)->path();
    EXPECT_TRUE(InstanceSocket::listen("/data/one"));
  }
  EXPECT_FALSE(std::filesystem::exists(left));
}

TEST_F(InstanceSocketTest, AClientThatHangsUpIsForgotten) {
  const auto socket = InstanceSocket::listen("/data/one");
  ASSERT_TRUE(socket);
  std::thread client([] { requestOfRunningInstance("/data/one", std::string(20000, 'x')); });
  EXPECT_EQ(served(*socket), "");
  client.join();
}

}  // namespace
}  // namespace tessarin::freedesktop
