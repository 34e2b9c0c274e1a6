#pragma once

namespace tessarin {

/// Whether a window system is there for the program's windows. Qt ends the process where none is.
bool canOpenWindows();

}  // namespace tessarin
