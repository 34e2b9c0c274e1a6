#pragma once

#include <string>

namespace tessarin::freedesktop {

/// Opens the address in the user's program for it. Does not wait for that program; logs only when none of the
/// desktop's openers could be started.
void openUrl(const std::string& url);

}  // namespace tessarin::freedesktop
