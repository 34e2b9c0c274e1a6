#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

#include <thread>

#include "base/FileDescriptor.h"
#include "platform/freedesktop/InstanceSocket.h"
#include "support/Eventually.h"
#include "support/TemporaryFolder.h"

namespace tessarin::freedesktop {
namespace {

class InstanceSocketTest : public ::testing::Test {
 protected:
  void SetUp() override { setenv("XDG_RUNTIME_DIR", folder.path().c_str(), 1); }
  void TearDown() override { unsetenv("XDG_RUNTIME_DIR"); }

  /// Serves one request on this thread while another asks.
  static std::string served(InstanceSocket& socket) {
    std::string seen;
    pollfd waiting{socket.descriptor(), POLLIN, 0};
    while (seen.empty() && poll(&waiting, 1, 5000) == 1) {
      socket.serve([&](const std::string& request) { return "done: " + (seen = request); });
    }
    return seen;
  }
  FileDescriptor connected() const {
    sockaddr_un place{AF_UNIX, {}};
    (folder / "instance.socket").string().copy(place.sun_path, sizeof place.sun_path - 1);
    FileDescriptor client(::socket(AF_UNIX, SOCK_STREAM, 0));
    EXPECT_EQ(connect(client.get(), reinterpret_cast<const sockaddr*>(&place), sizeof place), 0);
    return client;
  }
  const testing::TemporaryFolder folder;
};

TEST_F(InstanceSocketTest, RequestReachesTheInstanceOfTheSameFolderOnly) {
  EXPECT_EQ(requestOfRunningInstance("/data/one", "toggle"), std::nullopt);
  auto socket = InstanceSocket::listen("/data/one");
  ASSERT_TRUE(socket);
  EXPECT_EQ(requestOfRunningInstance("/data/two", "toggle"), std::nullopt);
  std::optional<std::string> answer;
  std::thread asking([&] { answer = requestOfRunningInstance("/data/one", "toggle"); });
  EXPECT_EQ(served(*socket), "toggle");
  asking.join();
  EXPECT_EQ(answer, "done: toggle");
}

TEST_F(InstanceSocketTest, SilentClientsHoldNobodyUpAndAreDroppedWhenTheyAreMany) {
  auto socket = InstanceSocket::listen(folder.path());
  ASSERT_TRUE(socket);
  std::vector<FileDescriptor> silent;
  const auto isServed = [&] {
    std::optional<std::string> answer;
    std::thread asking([&] { answer = requestOfRunningInstance(folder.path(), "toggle"); });
    const bool isHeard = served(*socket) == "toggle";
    asking.join();
    return isHeard && answer == "done: toggle";
  };
  for (std::size_t i = 0; i <= InstanceSocket::mostClients; ++i) {
    silent.push_back(connected());
    send(silent.back().get(), "x", i % 2, MSG_NOSIGNAL);
    EXPECT_TRUE(isServed()) << i;
  }
  char byte = 0;
  EXPECT_EQ(recv(silent.front().get(), &byte, 1, MSG_DONTWAIT), 0) << "was dropped";
  EXPECT_EQ(recv(silent.back().get(), &byte, 1, MSG_DONTWAIT), -1) << "is still heard";
  const std::string endless(100'000, 'x');
  EXPECT_TRUE(testing::eventually([&] { return recv(silent.back().get(), &byte, 1, MSG_DONTWAIT) == 0; },
                                  [&] {
                                    send(silent.back().get(), endless.data(), endless.size(),
                                         MSG_NOSIGNAL | MSG_DONTWAIT);
                                    socket->serve([](const std::string&) { return "heard"; });
                                  }));
}

}  // namespace
}  // namespace tessarin::freedesktop
