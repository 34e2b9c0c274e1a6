#include "base/SessionKind.h"

namespace tessarin {

bool isWaylandSession(const Environment& environment) {
  const auto type = environment("XDG_SESSION_TYPE");
  if (type == "wayland") return true;
  // Where the session says what it is, a name left over from another one is not believed.
  return type != "x11" && !environment("WAYLAND_DISPLAY").value_or("").empty();
}

}  // namespace tessarin
