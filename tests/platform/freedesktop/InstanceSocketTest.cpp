#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <atomic>
#include <thread>

#include "base/FileDescriptor.h"
#include "platform/freedesktop/InstanceSocket.h"
#include "support/TemporaryFolder.h"

namespace tessarin::freedesktop {
namespace {

class InstanceSocketTest : public ::testing::Test {
 protected:
  void SetUp() override { setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1); }
  void TearDown() override { unsetenv("XDG_RUNTIME_DIR"); }

  /// Serves one request on this thread while another asks.
  static std::string served(const InstanceSocket& socket) {
    std::string seen;
    pollfd waiting{socket.descriptor(), POLLIN, 0};
    if (poll(&waiting, 1, 5000) != 1) return seen;
    socket.serve([&](const std::string& request) { return "done: " + (seen = request); });
    return seen;
  }
  const testing::TemporaryFolder folder;
};

TEST_F(InstanceSocketTest, RequestReachesTheInstanceOfTheSameFolderOnly) {
  EXPECT_EQ(requestOfRunningInstance("/data/one", "toggle"), std::nullopt);
  const auto socket = InstanceSocket::listen("/data/one");
  ASSERT_TRUE(socket);
  EXPECT_EQ(requestOfRunningInstance("/data/two", "toggle"), std::nullopt);
  std::optional<std::string> answer;
  std::thread asking([&] { answer = requestOfRunningInstance("/data/one", "toggle"); });
  EXPECT_EQ(served(*socket), "toggle");
  asking.join();
  EXPECT_EQ(answer, "done: toggle");
}

TEST_F(InstanceSocketTest, AClientThatSpeaksTooSlowlyIsNotHeardOut) {
  const auto socket = InstanceSocket::listen(folder.path());
  ASSERT_TRUE(socket);
  sockaddr_un place{AF_UNIX, {}};
  (folder / "instance.socket").string().copy(place.sun_path, sizeof place.sun_path - 1);
  const FileDescriptor client(::socket(AF_UNIX, SOCK_STREAM, 0));
  ASSERT_EQ(connect(client.get(), reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
  std::atomic<bool> isServed{false};
  std::thread slow([&] {
    for (int i = 0; i < 500 && !isServed; ++i) {
      send(client.get(), "x", 1, MSG_NOSIGNAL);
      std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    ::shutdown(client.get(), SHUT_WR);
  });
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(served(*socket), "");
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2));
  isServed = true;
  slow.join();
}

}  // namespace
}  // namespace tessarin::freedesktop
