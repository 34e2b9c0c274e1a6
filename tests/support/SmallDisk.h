#pragma once

#include <sched.h>
#include <sys/mount.h>

#include <cerrno>
#include <cstring>

#include "support/TemporaryFolder.h"

namespace tessarin::testing {

/// A disk of 64 kB in a folder of its own, seen by this process and its children alone.
class SmallDisk {
 public:
  /// Throws, with the reason, where this user may not mount anything.
  SmallDisk() {
    // The mounts of everybody else stay as they are.
    require(::unshare(CLONE_NEWNS) == 0 && ::mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0);
    require(::mount("tmpfs", folder_.path().c_str(), "tmpfs", 0, "size=64k") == 0);
  }
  ~SmallDisk() { ::umount2(folder_.path().c_str(), MNT_DETACH); }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  const TemporaryFolder& folder() const { return folder_; }
  void fill() const {
    std::ofstream ballast(folder_ / "ballast");
    while (ballast.put('x').flush()) continue;
  }
  void clear() const { std::filesystem::remove(folder_ / "ballast"); }
  void setReadOnly(bool isReadOnly) const {
    const int flags = isReadOnly ? MS_REMOUNT | MS_RDONLY : MS_REMOUNT;
    require(::mount(nullptr, folder_.path().c_str(), nullptr, static_cast<unsigned long>(flags), nullptr) ==
            0);
  }

 private:
  static void require(bool isDone) {
    if (!isDone) throw std::runtime_error(std::string("mounting: ") + std::strerror(errno));
  }

  TemporaryFolder folder_;
};

}  // namespace tessarin::testing
