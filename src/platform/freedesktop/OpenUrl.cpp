#include "platform/freedesktop/OpenUrl.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "base/Log.h"

namespace tessarin::freedesktop {

void openUrl(const std::string& url) {
  // The shell leaves the opener in the background and ends at once, so no ended child is left to be waited
  // for.
  const char* script =
      "command -v xdg-open >/dev/null || command -v gio >/dev/null || exit 1; (xdg-open \"$1\" || gio open "
      "\"$1\") </dev/null "
      ">/dev/null 2>&1 &";
  const char* arguments[] = {"sh", "-c", script, "sh", url.c_str(), nullptr};
  pid_t child = 0;
  int status = 1;
  const bool started =
      posix_spawnp(&child, "sh", nullptr, nullptr, const_cast<char**>(arguments), environ) == 0;
  const bool ended = started && waitpid(child, &status, 0) == child;
  if (!ended || status != 0) log("Workspace", "no program that opens addresses was found");
}

}  // namespace tessarin::freedesktop
