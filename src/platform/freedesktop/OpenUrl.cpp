#include "platform/freedesktop/OpenUrl.h"

#include "base/Log.h"
#include "base/ShellScript.h"

namespace tessarin::freedesktop {

void openUrl(const std::string& url) {
  const char* script =
      "command -v xdg-open >/dev/null || command -v gio >/dev/null || exit 1; (xdg-open \"$1\" || gio open "
      "\"$1\") </dev/null >/dev/null 2>&1 &";
  if (!runShellScript(script, {url})) log("Workspace", "no program that opens addresses was found");
}

}  // namespace tessarin::freedesktop
