#include "support/desktop/ChildProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <stdexcept>
#include <string_view>

namespace tessarin::testing {
namespace {

std::vector<char*> pointers(const std::vector<std::string>& strings) {
  std::vector<char*> result;
  result.reserve(strings.size() + 1);
  for (const std::string& string : strings) result.push_back(const_cast<char*>(string.c_str()));
  return result;
}

std::vector<char*> fullEnvironment(const std::vector<std::string>& own) {
  std::vector<char*> result = pointers(own);
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string_view name = std::string_view(*entry).substr(0, std::string_view(*entry).find('=') + 1);
    const auto replaces = [name](const std::string& ours) { return ours.starts_with(name); };
    if (std::ranges::none_of(own, replaces)) result.push_back(*entry);
  }
  result.push_back(nullptr);
  return result;
}

constexpr int announcementFd = 3;
constexpr int startUpMilliseconds = 30'000;

pid_t spawn(const std::vector<std::string>& command, const std::vector<std::string>& environment,
            int announcements) {
  std::vector<char*> arguments = pointers(command);
  arguments.push_back(nullptr);
  const std::vector<char*> variables = fullEnvironment(environment);
  const pid_t pid = fork();
  if (pid < 0) throw std::runtime_error("no process for " + command.front());
  if (pid == 0) {
    // Between fork and exec only calls that are safe beside other threads.
    prctl(PR_SET_PDEATHSIG, SIGTERM);
    if (announcements >= 0) dup2(announcements, announcementFd);
    if (announcements == announcementFd) fcntl(announcementFd, F_SETFD, 0);
    const int null = open("/dev/null", O_RDWR);
    dup2(null, STDIN_FILENO);
    dup2(null, STDOUT_FILENO);
    dup2(null, STDERR_FILENO);
    execvpe(arguments[0], arguments.data(), variables.data());
    _exit(127);
  }
  return pid;
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& command,
                           const std::vector<std::string>& environment, std::string* announcement) {
  int ends[2] = {-1, -1};
  if (announcement != nullptr && pipe2(ends, O_CLOEXEC) != 0) throw std::runtime_error("no pipe");
  pid_ = spawn(command, environment, ends[1]);
  if (announcement == nullptr) return;
  close(ends[1]);
  pollfd waiting{ends[0], POLLIN, 0};
  for (char c = 0; poll(&waiting, 1, startUpMilliseconds) > 0 && read(ends[0], &c, 1) == 1 && c != '\n';) {
    *announcement += c;
  }
  close(ends[0]);
}

ChildProcess& ChildProcess::operator=(ChildProcess&& other) noexcept {
  if (this != &other) {
    stop();
    pid_ = std::exchange(other.pid_, -1);
  }
  return *this;
}

bool ChildProcess::isRunning() {
  if (pid_ < 0) return false;
  if (waitpid(pid_, nullptr, WNOHANG) == 0) return true;
  pid_ = -1;
  return false;
}

void ChildProcess::stop() {
  if (!isRunning()) return;
  kill(pid_, SIGTERM);
  waitpid(pid_, nullptr, 0);
  pid_ = -1;
}

int run(const std::vector<std::string>& command, const std::vector<std::string>& environment) {
  const pid_t pid = spawn(command, environment, -1);
  int status = 0;
  if (waitpid(pid, &status, 0) != pid || !WIFEXITED(status)) return -1;
  return WEXITSTATUS(status);
}

}  // namespace tessarin::testing
