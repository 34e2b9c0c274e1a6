#include "update/UpdateJudge.h"

#include <sys/utsname.h>

#include <QUrl>
#include <compare>
#include <string_view>

#include "update/VersionOrder.h"

namespace tessarin {
namespace {

/// As links are handed to the desktop, which looks for a handler by the scheme as it is written.
std::optional<std::string> soundHttpsAddress(const std::string& address) {
  const QUrl url(QString::fromStdString(address), QUrl::StrictMode);
  const bool isSound =
      url.isValid() && url.scheme() == u"https" && !url.host().isEmpty() && url.userInfo().isEmpty();
  return isSound ? std::optional(url.toEncoded().toStdString()) : std::nullopt;
}

std::weak_ordering compareReleases(const AppcastItem& a, const AppcastItem& b) {
  const auto order = compareVersions(a.displayVersion(), b.displayVersion());
  return std::is_neq(order) ? order : compareVersions(a.version, b.version);
}

bool runsHere(const AppcastItem& item, const Installation& installation) {
  const bool isOurSystem = item.operatingSystem.empty() || item.operatingSystem == "linux";
  const bool isRecentEnough = item.minimumSystemVersion.empty() || installation.kernel.empty() ||
                              std::is_lteq(compareVersions(item.minimumSystemVersion, installation.kernel));
  return isOurSystem && isRecentEnough;
}

bool isUpdate(const AppcastItem& item, const Installation& installation) {
  return item.channel.empty() && isNewer(item, installation) && runsHere(item, installation) &&
         downloadAddress(item).has_value();
}

}  // namespace

std::optional<std::string> downloadAddress(const AppcastItem& item) {
  for (const std::string& address : {item.downloadUrl, item.link}) {
    if (auto sound = soundHttpsAddress(address)) return sound;
  }
  return std::nullopt;
}

bool isNewer(const AppcastItem& item, const Installation& installation) {
  if (item.displayVersion().empty()) return false;
  const auto order = compareVersions(item.displayVersion(), installation.version);
  if (std::is_neq(order)) return std::is_gt(order);
  const bool hasBuilds = !item.shortVersion.empty() && !item.version.empty() && !installation.build.empty();
  return hasBuilds && std::is_gt(compareVersions(item.version, installation.build));
}

std::optional<AppcastItem> bestUpdate(const Appcast& appcast, const Installation& installation) {
  const AppcastItem* best = nullptr;
  for (const AppcastItem& item : appcast.items) {
    if (!isUpdate(item, installation)) continue;
    if (best == nullptr || std::is_gt(compareReleases(item, *best))) best = &item;
  }
  return best == nullptr ? std::nullopt : std::optional(*best);
}

std::string kernelVersion() {
  utsname system{};
  if (::uname(&system) != 0) return {};
  const std::string_view release = system.release;
  return std::string(release.substr(0, release.find_first_not_of("0123456789.")));
}

}  // namespace tessarin
