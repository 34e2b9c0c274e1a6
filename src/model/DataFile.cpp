#include "model/DataFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include "base/Files.h"
#include "base/Log.h"

namespace tessarin {

namespace fs = std::filesystem;

DataFile::DataFile(Description description, const WallClock& clock, LocalCalendar calendar)
    : description_(std::move(description)), clock_(clock), calendar_(std::move(calendar)) {}

bool DataFile::load(const std::function<void(std::string_view)>& decode) {
  try {
    const auto content = readFileIfPresent(description_.path);
    if (!content) return false;
    decode(*content);
    wasThere_ = true;
    return true;
  } catch (const std::exception& error) {
    isUnreadable_ = true;
    loadFailure_ = error.what();
    logFailure("load", *loadFailure_);
    return false;
  }
}

void DataFile::save(const std::function<std::string()>& encode) {
  try {
    createFolders(description_.path.parent_path());
    const std::string content = encode();
    if (isUnreadable_) moveAside();
    replaceFile(description_.path, content, description_.durability);
    wasThere_ = true;
    failure_.reset();
  } catch (const std::exception& error) {
    failure_ = error.what();
    logFailure("save", *failure_);
  }
}

bool DataFile::isMissing() const {
  std::error_code ignored;
  return failure_ || (wasThere_ && !fs::exists(description_.path, ignored));
}

void DataFile::moveAside() {
  const fs::path& path = description_.path;
  const fs::path aside = freeName();
  if (std::rename(path.c_str(), aside.c_str()) == 0) {
    log(description_.component, "Moved the unreadable " + path.filename().string() + " to " + aside.string());
  } else if (errno != ENOENT) {
    throw std::system_error(errno, std::generic_category(), "cannot move " + path.string() + " aside");
  }
  isUnreadable_ = false;
}

fs::path DataFile::freeName() const {
  const std::string name =
      description_.path.string() + ".unreadable-" + calendar_.fileNameStamp(clock_.now());
  fs::path candidate = name;
  std::error_code ignored;  // whatever is wrong with the name, the move will say
  for (int n = 2; fs::exists(fs::symlink_status(candidate, ignored)); ++n) {
    candidate = name + "-" + std::to_string(n);
  }
  return candidate;
}

void DataFile::logFailure(const char* action, const std::string& reason) const {
  log(description_.component,
      std::string("Failed to ") + action + " " + description_.content + ": " + reason);
}

}  // namespace tessarin
