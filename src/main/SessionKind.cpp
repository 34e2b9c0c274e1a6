#include "main/SessionKind.h"

namespace tessarin {

bool isWaylandSession(const Environment& environment) {
  if (const auto type = environment("XDG_SESSION_TYPE"); type == "wayland") return true;
  return !environment("WAYLAND_DISPLAY").value_or("").empty();
}

}  // namespace tessarin
