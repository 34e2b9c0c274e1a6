#include "platform/freedesktop/TrustRecord.h"

#include <string>
#include <system_error>

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
    // An unreadable record gives no permission. It is asked for many times a minute, so nothing is logged.
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

}  // namespace tessarin::freedesktop
