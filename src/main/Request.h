#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tessarin {

/// What a later instance asks of the running one. On its way each is one line, whatever bytes its arguments
/// have.
struct Request {
  enum class Kind {
    settings,
    toggle,
    quit,
    trust,       ///< the record of it has changed; a failure is "not yet"
    importFile,  ///< a file of ours, by its absolute path
    exportFile,  ///< the same
    add,         ///< trigger, text, name and keywords of a snippet
    remove       ///< the snippets with a trigger
  };

  Kind kind = Kind::settings;
  std::vector<std::string> arguments;  ///< as many as its kind has

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
