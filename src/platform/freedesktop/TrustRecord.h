#pragma once

#include <filesystem>
#include <optional>

namespace tessarin::freedesktop {

/// Whether the user has said that the program may judge keys and write into other applications. Kept in a
/// small file, so that a running instance sees at once what `--allow` and `--disallow` did. Nothing is
/// remembered between two calls.
class TrustRecord {
 public:
  /// `folder`: where our preferences live; need not exist.
  explicit TrustRecord(const std::filesystem::path& folder) : file_(folder / "trust") {}

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

}  // namespace tessarin::freedesktop
