#include "base/ShellScript.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

namespace tessarin {
namespace {

/// The program blocks the signals that end it, and a child would inherit that.
class NoBlockedSignals {
 public:
  NoBlockedSignals() {
    sigset_t none;
    sigemptyset(&none);
    posix_spawnattr_init(&attributes_);
    posix_spawnattr_setsigmask(&attributes_, &none);
    posix_spawnattr_setflags(&attributes_, POSIX_SPAWN_SETSIGMASK);
  }
  ~NoBlockedSignals() { posix_spawnattr_destroy(&attributes_); }
  NoBlockedSignals(const NoBlockedSignals&) = delete;
  NoBlockedSignals& operator=(const NoBlockedSignals&) = delete;
  const posix_spawnattr_t* get() const { return &attributes_; }

 private:
  posix_spawnattr_t attributes_{};
};

}  // namespace

bool runShellScript(const std::string& script, const std::vector<std::string>& arguments) {
  std::vector<const char*> words{"sh", "-c", script.c_str(), "sh"};
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  words.push_back(nullptr);
  const NoBlockedSignals attributes;
  pid_t child = 0;
  int status = 1;
  if (posix_spawnp(&child, "sh", nullptr, attributes.get(), const_cast<char**>(words.data()), environ) != 0) {
    return false;
  }
  return waitpid(child, &status, 0) == child && status == 0;
}

}  // namespace tessarin
