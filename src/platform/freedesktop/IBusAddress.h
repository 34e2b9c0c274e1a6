#pragma once

#include <filesystem>
#include <string>

#include "base/Environment.h"
#include "base/FileDescriptor.h"

namespace tessarin::freedesktop {

/// Where the IBus daemon of this display can be reached: $IBUS_ADDRESS, else as it wrote into its file below
/// $XDG_CONFIG_HOME, which is watched. Used by one thread.
class IBusAddress {
 public:
  explicit IBusAddress(const Environment& environment);

  /// Empty when no daemon has left an address. Reads the file anew.
  std::string read();
  /// Readable once an address may have been written; -1 while there is no such folder.
  int file() const { return changes_.get(); }

 private:
  void takeInChanges();

  std::string fixed_;
  std::filesystem::path path_;
  FileDescriptor changes_;
};

}  // namespace tessarin::freedesktop
