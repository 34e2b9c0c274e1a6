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

/// Shows a popup of `rows` rows with its frame's origin at `origin` (screen coordinates, points) until a row
/// is clicked.
ChildProcess startPopupChild(const std::string& displayVariable, int rows, Point origin);

}  // namespace tessarin::testing
