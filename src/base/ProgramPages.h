#pragma once

namespace tessarin {

/// Lets go of the pages of the program and its libraries that hold nothing of its own, and of free memory.
/// Most of what a start or a window has touched is never wanted again, and half of the program's memory is of
/// that kind. What is wanted comes back by itself from the system's cache of files, in microseconds a page.
/// Any thread.
void restProgramPages();

}  // namespace tessarin
