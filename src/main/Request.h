#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace tessarin {

/// What a later instance asks of the running one. On its way each is one line, whatever bytes the path has.
struct Request {
  enum class Kind {
    settings,
    toggle,
    quit,
    trust,  ///< the record of it has changed; a failure is "not yet"
    importFile,
    exportFile
  };

  Kind kind = Kind::settings;
  std::filesystem::path file;  ///< absolute; of an import or export

  bool operator==(const Request&) const = default;
  std::string encoded() const;
  /// None when the line is no request.
  static std::optional<Request> decode(const std::string& line);
};

/// How a request, or the same done without a running instance, went.
struct Answer {
  bool isSuccess = true;
  std::string text;  ///< for the user

  bool operator==(const Answer&) const = default;
  std::string encoded() const;
  /// Whatever came that is no answer counts as a failure with that text.
  static Answer decode(const std::string& line);
};

}  // namespace tessarin
