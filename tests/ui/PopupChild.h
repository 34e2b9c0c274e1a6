#pragma once

#include <string>
#include <vector>

#include "base/Geometry.h"
#include "support/desktop/ChildProcess.h"

/// A program that shows a popup on a display and stays: this test program, started anew, because the scale
/// that Qt draws with is fixed when a program starts.
namespace tessarin::testing {

bool isPopupChild(int argc, char** argv);
int runPopupChild(int argc, char** argv);

/// The popup's title after a row was clicked, all earlier events having been dealt with.
inline constexpr const char* clickedTitle = "clicked";

/// Shows a popup of `rows` rows with its frame's origin at `origin` (screen coordinates, points) until it is
/// stopped.
ChildProcess startPopupChild(const std::string& displayVariable, int rows, Point origin);

}  // namespace tessarin::testing
