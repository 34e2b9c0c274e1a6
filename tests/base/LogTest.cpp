#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <termios.h>

#include <future>

#include "base/FileDescriptor.h"
#include "base/Log.h"

namespace tessarin {
namespace {

/// Two ends of what standard output can be; what stands in `ahead` was written before anything else.
struct Ends {
  FileDescriptor output;
  FileDescriptor reader;
  std::string ahead;
};

std::string readAll(int file) {
  fcntl(file, F_SETFL, O_NONBLOCK);
  std::string text;
  char part[4096];
  for (ssize_t size = 0; (size = read(file, part, sizeof(part))) > 0;)
    text.append(part, static_cast<std::size_t>(size));
  std::erase(text, '\r');
  return text;
}

Ends filled(Ends ends) {
  const int flags = fcntl(ends.output.get(), F_GETFL);
  fcntl(ends.output.get(), F_SETFL, flags | O_NONBLOCK);
  while (write(ends.output.get(), ".", 1) == 1) ends.ahead += '.';
  fcntl(ends.output.get(), F_SETFL, flags);
  return ends;
}

Ends fullPipe() {
  int ends[2];
  EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
  return filled({FileDescriptor(ends[1]), FileDescriptor(ends[0]), {}});
}

Ends fullSocket() {
  int ends[2];
  EXPECT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends), 0);
  return filled({FileDescriptor(ends[1]), FileDescriptor(ends[0]), {}});
}

Ends haltedTerminal() {
  FileDescriptor reader(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
  EXPECT_EQ(grantpt(reader.get()) + unlockpt(reader.get()), 0);
  FileDescriptor output(open(ptsname(reader.get()), O_RDWR | O_NOCTTY | O_CLOEXEC));
  EXPECT_EQ(tcflow(output.get(), TCOOFF), 0);
  return {std::move(output), std::move(reader), {}};
}

/// Standard output leads elsewhere while it lives.
class Redirection {
 public:
  explicit Redirection(int output) { dup2(output, STDOUT_FILENO); }
  ~Redirection() { dup2(before_.get(), STDOUT_FILENO); }
  Redirection(const Redirection&) = delete;
  Redirection& operator=(const Redirection&) = delete;

 private:
  FileDescriptor before_{dup(STDOUT_FILENO)};
};

TEST(Log, NeverWaitsAndSaysLaterHowMuchIsMissing) {
  for (const auto make : {&fullPipe, &fullSocket, &haltedTerminal}) {
    std::fflush(stdout);
    const Ends ends = make();
    const Redirection redirection(ends.output.get());
    auto written = std::async(std::launch::async, [] {
      log("Test", "one");
      log("Test", "two");
    });
    EXPECT_EQ(written.wait_for(std::chrono::seconds(10)), std::future_status::ready);
    EXPECT_EQ(readAll(ends.reader.get()), ends.ahead);
    tcflow(ends.output.get(), TCOON);
    written.wait();
    log("Test", "three");
    EXPECT_EQ(readAll(ends.reader.get()), "[Log] 2 lines could not be written\n[Test] three\n");
  }
}

}  // namespace
}  // namespace tessarin
