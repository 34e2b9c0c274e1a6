#pragma once

#include <string>

namespace tessarin {

/// What was fixed when the program was built. A text that was not given is empty.
struct BuildSettings {
  std::string version;
  std::string build;    ///< its number, TESSARIN_BUILD
  std::string feedUrl;  ///< where releases are announced, TESSARIN_FEED_URL; empty: updates are off
};

BuildSettings buildSettings();

}  // namespace tessarin
