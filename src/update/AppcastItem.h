#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarin {

/// One release as a feed describes it. Texts are UTF-8 and empty where the feed does not give them; none of
/// them can be trusted.
struct AppcastItem {
  std::string title;
  std::string version;               ///< the build, or the version itself where there is no short one
  std::string shortVersion;          ///< the version as people know it
  std::string minimumSystemVersion;  ///< oldest kernel that it runs on
  std::string channel;               ///< empty: for everybody
  std::string operatingSystem;       ///< empty: not said
  std::string notes;                 ///< plain text or HTML
  std::string link;                  ///< a page about the release
  std::string publicationDate;       ///< as the feed writes it
  std::string downloadUrl;
  std::string downloadType;
  std::int64_t downloadLength = 0;  ///< bytes; zero when not said

  bool operator==(const AppcastItem&) const = default;

  /// The version to be shown and compared first.
  const std::string& displayVersion() const { return shortVersion.empty() ? version : shortVersion; }
  /// Tells this release from all others of the feed: the build where there is one.
  const std::string& identity() const { return version.empty() ? shortVersion : version; }
};

/// A feed's releases in its own order.
struct Appcast {
  std::vector<AppcastItem> items;
};

}  // namespace tessarin
