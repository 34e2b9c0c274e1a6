#pragma once

#include "base/Environment.h"

namespace tessarin {

/// Whether this is a Wayland session. Judged by the session, not by whether an X server answers: most of them
/// run one for old applications, and a tap there would see those only.
bool isWaylandSession(const Environment& environment = processEnvironment);

}  // namespace tessarin
