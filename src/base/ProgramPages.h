#pragma once

namespace tessarin {

/// Lets go of free memory, and of the pages of the program and its libraries that are as they are on file.
/// After a start two thirds of the memory are of that kind, most of it never wanted again. What is wanted
/// comes back by itself from the system's cache of files. Any thread.
void restProgramPages();

}  // namespace tessarin
