#pragma once

#include <string>
#include <vector>

namespace tessarin {

/// What the program was started for.
struct CommandLine {
  enum class Action { run, help, version, allow, disallow, toggle, quit, unknown };

  Action action = Action::run;
  std::string unknownOption;  ///< the first one that is not understood

  static CommandLine parse(const std::vector<std::string>& arguments);
};

/// The text of `--help`.
std::string usage();

}  // namespace tessarin
