#pragma once

#include <filesystem>
#include <functional>
#include <optional>

#include "base/Signal.h"
#include "platform/freedesktop/FileWatcher.h"

namespace tessarin::freedesktop {

/// Whether the user has said that the program may judge keys and write into other applications. Kept in a
/// small file, which every call reads.
class TrustRecord {
 public:
  /// `folder`: where our preferences live; need not exist.
  explicit TrustRecord(const std::filesystem::path& folder) : file_(folder / "trust") {}
  const std::filesystem::path& file() const { return file_; }

  /// False also when the user was never asked or the record cannot be read.
  bool isTrusted() const { return answer().value_or(false); }
  /// None when there is no readable answer.
  std::optional<bool> answer() const;
  /// False, with a line in the log, when the answer could not be recorded.
  bool allow() const { return record(true); }
  bool disallow() const { return record(false); }

 private:
  bool record(bool isTrusted) const;

  std::filesystem::path file_;
};

/// The record as a running program goes by it: read when it has changed, whoever did it, so that asking at
/// every key costs nothing. Main thread.
class WatchedTrust {
 public:
  /// The folder as for the record. `queue` has to outlive this.
  WatchedTrust(MainQueue& queue, const std::filesystem::path& folder);

  bool isTrusted() const { return isTrusted_; }
  void allow();
  void disallow();
  /// Reads the record now, for one who knows that it has changed.
  void reload();
  /// Runs after the answer has become another.
  [[nodiscard]] Subscription onChange(std::function<void()> callback);

 private:
  TrustRecord record_;
  bool isTrusted_ = false;
  Signal<> changed_;
  FileWatcher watcher_;
};

}  // namespace tessarin::freedesktop
