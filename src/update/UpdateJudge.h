#pragma once

#include <optional>
#include <string>

#include "update/AppcastItem.h"

namespace tessarin {

/// What runs here, as far as it decides which release is an update.
struct Installation {
  std::string version;
  std::string build;   ///< may be empty
  std::string kernel;  ///< version of the running kernel; empty: not known, every requirement counts as met
};

/// Where the release can be had: the enclosure's address or else the page about it, whichever is a sound
/// HTTPS address, percent-encoded and with its scheme and host in small letters. Nothing when neither is.
std::optional<std::string> downloadAddress(const AppcastItem& item);

/// Whether the release is newer. Versions as people know them are compared first; where they are equal, the
/// builds, if both are known.
bool isNewer(const AppcastItem& item, const Installation& installation);

/// The newest release that is newer than what is installed, is meant for everybody, runs on this system and
/// can be downloaded. Distributions number themselves in ways that do not compare, so a release's minimum
/// system version is one of the kernel.
std::optional<AppcastItem> bestUpdate(const Appcast& appcast, const Installation& installation);

/// The version of the running kernel: "6.1.0" where the system says "6.1.0-18-amd64".
std::string kernelVersion();

}  // namespace tessarin
