#include "platform/freedesktop/TrustRecord.h"

#include <string>
#include <system_error>
#include <utility>

#include "base/AtomicFile.h"
#include "base/Files.h"
#include "base/Log.h"

namespace tessarin::freedesktop {
namespace {

constexpr std::string_view yes = "yes\n";
constexpr std::string_view no = "no\n";

}  // namespace

std::optional<bool> TrustRecord::answer() const {
  try {
    const auto content = readFileIfPresent(file_);
    if (content == yes) return true;
    if (content == no) return false;
  } catch (const std::system_error&) {
    // An unreadable record gives no permission.
  }
  return std::nullopt;
}

bool TrustRecord::record(bool isTrusted) const {
  try {
    createFolders(file_.parent_path());
    replaceFile(file_, isTrusted ? yes : no, Durability::powerCut);
    return true;
  } catch (const std::system_error& error) {
    log("TrustRecord", error.what());
    return false;
  }
}

WatchedTrust::WatchedTrust(MainQueue& queue, const std::filesystem::path& folder)
    : record_(folder), watcher_(queue, record_.file(), [this] { reload(); }) {
  // Not before it is watched, so that no change falls between.
  isTrusted_ = record_.isTrusted();
}

void WatchedTrust::allow() {
  record_.allow();
  reload();
}

void WatchedTrust::disallow() {
  record_.disallow();
  reload();
}

void WatchedTrust::reload() {
  if (std::exchange(isTrusted_, record_.isTrusted()) != isTrusted_) changed_.emit();
}

Subscription WatchedTrust::onChange(std::function<void()> callback) {
  return changed_.subscribe(std::move(callback));
}

}  // namespace tessarin::freedesktop
