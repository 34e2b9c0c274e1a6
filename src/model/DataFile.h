#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "base/AtomicFile.h"
#include "model/LocalCalendar.h"

namespace tessarin {

/// One file of the storage folder, read at start and replaced as a whole. What a save would overwrite without
/// its being in memory is moved aside first under a name that tells when: a file that could not be read, and
/// one that another program has changed since. Failures are logged in one line and go no further.
class DataFile {
 public:
  struct Description {
    std::string component;  ///< whose log lines these are
    std::string content;    ///< what the log calls it: "user snippets"
    std::filesystem::path path;
    Durability durability;
  };

  /// The clock, which must outlive this, and the calendar date the names of files moved aside.
  DataFile(Description description, const WallClock& clock, LocalCalendar calendar);

  /// Hands the content to `decode`, which throws when it is not what it should be. True when that went well;
  /// a missing file is no failure and logs nothing.
  bool load(const std::function<void(std::string_view)>& decode);
  /// Why it could not be read, also when it has been replaced since: what is in memory is then not all that
  /// the user had.
  const std::optional<std::string>& loadFailure() const { return loadFailure_; }

  /// Replaces the content by what `encode` returns; makes the folder first.
  void save(const std::function<std::string()>& encode);
  /// Why the last save failed.
  const std::optional<std::string>& failure() const { return failure_; }
  /// Whether what is in memory is not on the disk: the last save failed, or the file has been removed since.
  bool isMissing() const;

 private:
  /// A content without keeping it. Other than times and inodes it tells a change on every file system.
  struct Fingerprint {
    explicit Fingerprint(std::string_view content);
    bool operator==(const Fingerprint&) const = default;

    std::size_t size;
    std::size_t hash;
  };

  bool isOthers() const;
  void moveAside(const std::string& what, const std::string& word);
  std::filesystem::path freeName(const std::filesystem::path& file, const std::string& word) const;
  void logFailure(const char* action, const std::string& reason) const;

  Description description_;
  const WallClock& clock_;
  LocalCalendar calendar_;
  bool isUnreadable_ = false;         ///< what is there now
  std::optional<Fingerprint> known_;  ///< of what was read or written by us
  std::optional<std::string> loadFailure_;
  std::optional<std::string> failure_;
};

}  // namespace tessarin
