#include "base/Log.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <mutex>
#include <utility>

#include "base/FileDescriptor.h"

namespace tessarin {
namespace {

std::mutex mutex;
std::function<void(const std::string&)>& currentSink() {
  static std::function<void(const std::string&)> sink;
  return sink;
}

/// A pipe takes as much wholly or not at all.
constexpr std::size_t longestLine = PIPE_BUF - 1;

std::string oneLine(std::string_view component, std::string_view message) {
  std::string line = "[";
  line.append(component).append("] ").append(message);
  for (char& c : line) {
    if (c == '\n' || c == '\r') c = ' ';
  }
  return line;
}

ssize_t writeWhereThereIsRoom(std::string_view bytes) {
  pollfd output{STDOUT_FILENO, POLLOUT, 0};
  const bool hasRoom = poll(&output, 1, 0) == 1 && output.revents == POLLOUT;
  return hasRoom ? write(STDOUT_FILENO, bytes.data(), bytes.size()) : -1;
}

/// Opened anew, because not to wait is a property of the open file, which a shell for one shares with us.
ssize_t writeToPipeOrTerminal(std::string_view bytes) {
  const FileDescriptor own(open("/proc/self/fd/1", O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (own) return write(own.get(), bytes.data(), bytes.size());
  const bool hasReader = errno != ENXIO;
  return hasReader ? writeWhereThereIsRoom(bytes) : -1;
}

/// To standard output, as much as it takes without waiting.
std::size_t writeAtOnce(std::string_view bytes) {
  struct stat output {};
  if (fstat(STDOUT_FILENO, &output) != 0) return 0;
  ssize_t written = 0;
  if (S_ISREG(output.st_mode)) {
    written = write(STDOUT_FILENO, bytes.data(), bytes.size());
  } else if (S_ISSOCK(output.st_mode)) {
    written = send(STDOUT_FILENO, bytes.data(), bytes.size(), MSG_DONTWAIT | MSG_NOSIGNAL);
  } else {
    written = writeToPipeOrTerminal(bytes);
  }
  return written > 0 ? static_cast<std::size_t>(written) : 0;
}

class Output {
 public:
  void write(const std::string& line) {
    const std::string missing = "[Log] " + std::to_string(dropped_) + " lines could not be written";
    if (dropped_ > 0 && put(missing)) dropped_ = 0;
    if (dropped_ > 0 || !put(line)) ++dropped_;
  }

 private:
  bool put(const std::string& line) {
    if (!rest_.empty()) rest_.erase(0, writeAtOnce(rest_));
    if (!rest_.empty()) return false;
    const std::string whole = line.substr(0, longestLine) + '\n';
    const std::size_t written = writeAtOnce(whole);
    if (written > 0) rest_ = whole.substr(written);
    return written > 0;
  }

  std::string rest_;  ///< of a line that was taken in part
  unsigned long dropped_ = 0;
};

}  // namespace

void log(std::string_view component, std::string_view message) {
  static Output output;
  const std::string line = oneLine(component, message);
  const std::lock_guard lock(mutex);
  currentSink() ? currentSink()(line) : output.write(line);
}

LogCapture::LogCapture(std::function<void(const std::string&)> sink) {
  const std::lock_guard lock(mutex);
  previous_ = std::exchange(currentSink(), std::move(sink));
}

LogCapture::~LogCapture() {
  const std::lock_guard lock(mutex);
  currentSink() = std::move(previous_);
}

}  // namespace tessarin
