#include "model/DataFile.h"

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>

#include "base/Files.h"
#include "base/Log.h"
#include "base/Translate.h"

namespace tessarin {

namespace fs = std::filesystem;

DataFile::Fingerprint::Fingerprint(std::string_view content)
    : size(content.size()), hash(std::hash<std::string_view>()(content)) {}

DataFile::DataFile(Description description, const WallClock& clock, LocalCalendar calendar)
    : description_(std::move(description)), clock_(clock), calendar_(std::move(calendar)) {}

bool DataFile::load(const std::function<void(std::string_view)>& decode) {
  try {
    const auto content = readFileIfPresent(description_.path);
    if (!content) return false;
    decode(*content);
    known_.emplace(*content);
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
    if (isUnreadable_) {
      moveAside("the unreadable %1", "unreadable");
      isUnreadable_ = false;
    } else if (isOthers()) {
      moveAside("%1, which another program has changed,", "changed");
    }
    replaceFile(description_.path, content, description_.durability);
    known_.emplace(content);
    failure_.reset();
  } catch (const std::exception& error) {
    failure_ = error.what();
    logFailure("save", *failure_);
  }
}

bool DataFile::isMissing() const {
  std::error_code ignored;
  return failure_ || (known_ && !fs::exists(description_.path, ignored));
}

bool DataFile::isOthers() const {
  try {
    const auto content = readFileIfPresent(description_.path);
    return content && known_ != Fingerprint(*content);
  } catch (const std::exception&) {
    return true;  // what cannot be read any more, we have not made so
  }
}

void DataFile::moveAside(const std::string& what, const std::string& word) {
  // A link stays one.
  std::error_code isNoFile;
  fs::path file = fs::canonical(description_.path, isNoFile);
  if (isNoFile) file = description_.path;
  const fs::path aside = freeName(file, word);
  if (std::rename(file.c_str(), aside.c_str()) == 0) {
    log(description_.component,
        "Moved " + filledIn(what, {description_.path.filename().string()}) + " to " + aside.string());
  } else if (errno != ENOENT) {
    throw std::system_error(errno, std::generic_category(),
                            "cannot move " + description_.path.string() + " aside");
  }
}

fs::path DataFile::freeName(const fs::path& file, const std::string& word) const {
  const std::string name = file.string() + "." + word + "-" + calendar_.fileNameStamp(clock_.now());
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
